#include <pki/certificate_authority.hpp>

#include <openssl/bio.h>
#include <openssl/bn.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <stdexcept>

namespace velk::tools::pki {

namespace {

std::string to_pem(X509* certificate)
{
    BIO* bio = BIO_new(BIO_s_mem());
    PEM_write_bio_X509(bio, certificate);
    char* data = nullptr;
    long const length = BIO_get_mem_data(bio, &data);
    std::string pem(data, static_cast<std::size_t>(length));
    BIO_free(bio);
    return pem;
}

std::string to_pem(EVP_PKEY* key)
{
    BIO* bio = BIO_new(BIO_s_mem());
    PEM_write_bio_PrivateKey(bio, key, nullptr, nullptr, 0, nullptr, nullptr);
    char* data = nullptr;
    long const length = BIO_get_mem_data(bio, &data);
    std::string pem(data, static_cast<std::size_t>(length));
    BIO_free(bio);
    return pem;
}

void add_extension(X509* certificate, X509* issuer, int nid, std::string const& value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    X509_EXTENSION* extension = X509V3_EXT_conf_nid(nullptr, &context, nid, value.c_str());
    if (extension == nullptr) {
        throw std::runtime_error("pki: bad extension " + value);
    }
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

X509* new_certificate(EVP_PKEY* key, std::string const& common_name, long from_days_ago, long valid_days)
{
    X509* certificate = X509_new();
    X509_set_version(certificate, 2);
    BIGNUM* serial = BN_new();
    BN_rand(serial, 63, BN_RAND_TOP_ANY, BN_RAND_BOTTOM_ANY);
    BN_to_ASN1_INTEGER(serial, X509_get_serialNumber(certificate));
    BN_free(serial);
    X509_gmtime_adj(X509_getm_notBefore(certificate), -from_days_ago * 24 * 3600);
    X509_gmtime_adj(X509_getm_notAfter(certificate), (valid_days - from_days_ago) * 24 * 3600);
    X509_set_pubkey(certificate, key);
    X509_NAME* name = X509_get_subject_name(certificate);
    X509_NAME_add_entry_by_txt(name, "C", MBSTRING_ASC, reinterpret_cast<unsigned char const*>("BR"), -1, -1, 0);
    X509_NAME_add_entry_by_txt(name, "O", MBSTRING_UTF8, reinterpret_cast<unsigned char const*>("Velk Testes"), -1,
                               -1, 0);
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8,
                               reinterpret_cast<unsigned char const*>(common_name.c_str()), -1, -1, 0);
    return certificate;
}

}  // namespace

struct certificate_authority::impl {
    int key_bits = 2048;
    EVP_PKEY* key = nullptr;
    X509* certificate = nullptr;
    std::string certificate_pem;

    ~impl()
    {
        X509_free(certificate);
        EVP_PKEY_free(key);
    }
};

certificate_authority::certificate_authority(std::string const& common_name, int key_bits)
    : impl_(std::make_unique<impl>())
{
    impl_->key_bits = key_bits;
    impl_->key = EVP_RSA_gen(static_cast<unsigned int>(key_bits));
    if (impl_->key == nullptr) {
        throw std::runtime_error("pki: RSA key generation failed");
    }
    impl_->certificate = new_certificate(impl_->key, common_name, 1, 3650);
    X509_set_issuer_name(impl_->certificate, X509_get_subject_name(impl_->certificate));
    add_extension(impl_->certificate, impl_->certificate, NID_basic_constraints, "critical,CA:TRUE");
    add_extension(impl_->certificate, impl_->certificate, NID_key_usage, "critical,keyCertSign,cRLSign");
    add_extension(impl_->certificate, impl_->certificate, NID_subject_key_identifier, "hash");
    X509_sign(impl_->certificate, impl_->key, EVP_sha256());
    impl_->certificate_pem = to_pem(impl_->certificate);
}

certificate_authority::certificate_authority(certificate_authority&&) noexcept = default;
certificate_authority& certificate_authority::operator=(certificate_authority&&) noexcept = default;
certificate_authority::~certificate_authority() = default;

std::string const& certificate_authority::certificate_pem() const
{
    return impl_->certificate_pem;
}

issued_certificate certificate_authority::issue_server(std::vector<std::string> const& dns_names,
                                                       std::vector<std::string> const& ip_addresses) const
{
    std::string const name = dns_names.empty() ? (ip_addresses.empty() ? "server" : ip_addresses.front())
                                               : dns_names.front();
    return issue(name, true, false, dns_names, ip_addresses);
}

issued_certificate certificate_authority::issue_client(std::string const& common_name) const
{
    return issue(common_name, false, true, {}, {});
}

issued_certificate certificate_authority::issue(std::string const& common_name, bool server, bool client,
                                                std::vector<std::string> const& dns_names,
                                                std::vector<std::string> const& ip_addresses,
                                                long valid_from_days_ago, long valid_days) const
{
    EVP_PKEY* key = EVP_RSA_gen(static_cast<unsigned int>(impl_->key_bits));
    if (key == nullptr) {
        throw std::runtime_error("pki: RSA key generation failed");
    }
    X509* certificate = new_certificate(key, common_name, valid_from_days_ago, valid_days);
    X509_set_issuer_name(certificate, X509_get_subject_name(impl_->certificate));
    add_extension(certificate, impl_->certificate, NID_basic_constraints, "critical,CA:FALSE");
    add_extension(certificate, impl_->certificate, NID_key_usage,
                  "critical,digitalSignature,keyEncipherment,nonRepudiation");
    std::string usages;
    if (server) {
        usages = "serverAuth";
    }
    if (client) {
        usages += usages.empty() ? "clientAuth,emailProtection" : ",clientAuth,emailProtection";
    }
    if (!usages.empty()) {
        add_extension(certificate, impl_->certificate, NID_ext_key_usage, usages);
    }
    std::string alternative_names;
    for (auto const& dns : dns_names) {
        alternative_names += (alternative_names.empty() ? "DNS:" : ",DNS:") + dns;
    }
    for (auto const& ip : ip_addresses) {
        alternative_names += (alternative_names.empty() ? "IP:" : ",IP:") + ip;
    }
    if (!alternative_names.empty()) {
        add_extension(certificate, impl_->certificate, NID_subject_alt_name, alternative_names);
    }
    add_extension(certificate, impl_->certificate, NID_authority_key_identifier, "keyid:always");
    X509_sign(certificate, impl_->key, EVP_sha256());
    issued_certificate issued(to_pem(certificate), to_pem(key), impl_->certificate_pem);
    X509_free(certificate);
    EVP_PKEY_free(key);
    return issued;
}

}  // namespace velk::tools::pki
