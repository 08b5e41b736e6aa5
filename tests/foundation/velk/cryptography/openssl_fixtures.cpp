#include "openssl_fixtures.hpp"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/pkcs12.h>
#include <openssl/provider.h>
#include <openssl/x509.h>

#include <stdexcept>

namespace velk::test {

namespace {

core::byte_array to_bytes(PKCS12* bundle)
{
    if (bundle == nullptr) {
        throw std::runtime_error("PKCS12_create failed");
    }
    unsigned char* der = nullptr;
    int const length = i2d_PKCS12(bundle, &der);
    core::byte_array bytes;
    bytes.assign(der, der + length);
    OPENSSL_free(der);
    PKCS12_free(bundle);
    return bytes;
}

std::string bio_text(BIO* bio)
{
    char* data = nullptr;
    long const length = BIO_get_mem_data(bio, &data);
    std::string text(data, static_cast<std::size_t>(length));
    BIO_free(bio);
    return text;
}

}  // namespace

core::byte_array make_ec_pkcs12(std::string const& password)
{
    EVP_PKEY* key = EVP_EC_gen("P-256");
    X509* certificate = X509_new();
    X509_set_version(certificate, 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate), 0);
    X509_gmtime_adj(X509_getm_notAfter(certificate), 3600);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate), "CN", MBSTRING_UTF8,
                               reinterpret_cast<unsigned char const*>("EC TESTE:12345678000195"), -1, -1, 0);
    X509_set_issuer_name(certificate, X509_get_subject_name(certificate));
    X509_set_pubkey(certificate, key);
    X509_sign(certificate, key, EVP_sha256());
    core::byte_array bytes =
        to_bytes(PKCS12_create(password.c_str(), "ec", key, certificate, nullptr, 0, 0, 0, 0, 0));
    X509_free(certificate);
    EVP_PKEY_free(key);
    return bytes;
}

core::byte_array make_legacy_pkcs12(tools::pki::issued_certificate const& issued, std::string const& password)
{
    // A context of its own, so that the library under test finds the legacy
    // algorithms missing from the default context, as in a fresh process.
    OSSL_LIB_CTX* context = OSSL_LIB_CTX_new();
    OSSL_PROVIDER* legacy = OSSL_PROVIDER_load(context, "legacy");
    OSSL_PROVIDER* standard = OSSL_PROVIDER_load(context, "default");
    if (legacy == nullptr || standard == nullptr) {
        throw std::runtime_error("OpenSSL legacy provider not available");
    }
    BIO* certificate_bio = BIO_new_mem_buf(issued.certificate_pem().data(), -1);
    X509* certificate = PEM_read_bio_X509(certificate_bio, nullptr, nullptr, nullptr);
    BIO* key_bio = BIO_new_mem_buf(issued.private_key_pem().data(), -1);
    EVP_PKEY* key = PEM_read_bio_PrivateKey(key_bio, nullptr, nullptr, nullptr);
    core::byte_array bytes =
        to_bytes(PKCS12_create_ex(password.c_str(), "legacy", key, certificate, nullptr,
                                  NID_pbe_WithSHA1And3_Key_TripleDES_CBC, NID_pbe_WithSHA1And40BitRC2_CBC, 0, 0, 0,
                                  context, nullptr));
    EVP_PKEY_free(key);
    X509_free(certificate);
    BIO_free(key_bio);
    BIO_free(certificate_bio);
    OSSL_PROVIDER_unload(legacy);
    OSSL_PROVIDER_unload(standard);
    OSSL_LIB_CTX_free(context);
    return bytes;
}

core::byte_array with_mac_iterations(core::byte_array const& bundle, std::uint64_t iterations)
{
    unsigned char const* cursor = bundle.data();
    PKCS12* parsed = d2i_PKCS12(nullptr, &cursor, static_cast<long>(bundle.size()));
    ASN1_INTEGER const* count = nullptr;
    PKCS12_get0_mac(nullptr, nullptr, nullptr, &count, parsed);
    if (count == nullptr) {
        throw std::runtime_error("bundle without a MAC iteration count");
    }
    // OpenSSL hands the count out read-only; the fixture rewrites it in place.
    ASN1_INTEGER_set_uint64(const_cast<ASN1_INTEGER*>(count), iterations);
    return to_bytes(parsed);
}

std::string make_ed25519_pem()
{
    EVP_PKEY* key = EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519");
    BIO* bio = BIO_new(BIO_s_mem());
    PEM_write_bio_PrivateKey(bio, key, nullptr, nullptr, 0, nullptr, nullptr);
    EVP_PKEY_free(key);
    return bio_text(bio);
}

std::string encrypt_pem_key(std::string const& private_key_pem, std::string const& passphrase)
{
    BIO* in = BIO_new_mem_buf(private_key_pem.data(), static_cast<int>(private_key_pem.size()));
    EVP_PKEY* key = PEM_read_bio_PrivateKey(in, nullptr, nullptr, nullptr);
    BIO_free(in);
    BIO* out = BIO_new(BIO_s_mem());
    PEM_write_bio_PrivateKey(out, key, EVP_aes_256_cbc(), nullptr, 0, nullptr,
                             const_cast<char*>(passphrase.c_str()));
    EVP_PKEY_free(key);
    return bio_text(out);
}

EVP_PKEY* certificate_public_key(std::string const& certificate_pem)
{
    BIO* bio = BIO_new_mem_buf(certificate_pem.data(), static_cast<int>(certificate_pem.size()));
    X509* certificate = PEM_read_bio_X509(bio, nullptr, nullptr, nullptr);
    BIO_free(bio);
    EVP_PKEY* key = X509_get_pubkey(certificate);
    X509_free(certificate);
    return key;
}

}  // namespace velk::test
