#include <pki/issued_certificate.hpp>

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/pkcs12.h>
#include <openssl/x509.h>

#include <stdexcept>

namespace velk::tools::pki {

namespace {

X509* read_certificate(std::string const& pem)
{
    BIO* bio = BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size()));
    X509* certificate = PEM_read_bio_X509(bio, nullptr, nullptr, nullptr);
    BIO_free(bio);
    if (certificate == nullptr) {
        throw std::runtime_error("pki: unreadable certificate");
    }
    return certificate;
}

}  // namespace

core::byte_array issued_certificate::certificate_der() const
{
    X509* certificate = read_certificate(certificate_pem_);
    unsigned char* der = nullptr;
    int const length = i2d_X509(certificate, &der);
    core::byte_array bytes;
    bytes.assign(der, der + length);
    OPENSSL_free(der);
    X509_free(certificate);
    return bytes;
}

core::byte_array issued_certificate::to_pkcs12(std::string const& password) const
{
    X509* certificate = read_certificate(certificate_pem_);
    X509* ca = read_certificate(ca_certificate_pem_);
    BIO* key_bio = BIO_new_mem_buf(private_key_pem_.data(), static_cast<int>(private_key_pem_.size()));
    EVP_PKEY* key = PEM_read_bio_PrivateKey(key_bio, nullptr, nullptr, nullptr);
    BIO_free(key_bio);
    STACK_OF(X509)* chain = sk_X509_new_null();
    sk_X509_push(chain, ca);
    PKCS12* bundle = PKCS12_create(password.c_str(), "velk", key, certificate, chain, 0, 0, 0, 0, 0);
    if (bundle == nullptr) {
        throw std::runtime_error("pki: PKCS12_create failed");
    }
    unsigned char* der = nullptr;
    int const length = i2d_PKCS12(bundle, &der);
    core::byte_array bytes;
    bytes.assign(der, der + length);
    OPENSSL_free(der);
    PKCS12_free(bundle);
    sk_X509_pop_free(chain, X509_free);
    EVP_PKEY_free(key);
    X509_free(certificate);
    return bytes;
}

}  // namespace velk::tools::pki
