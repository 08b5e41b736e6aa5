#pragma once

// Internal to the cryptography libraries (never included by callers): the
// OpenSSL objects behind the value classes, owned through unique pointers, and
// the text of OpenSSL's error queue for failure reports.

#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/cryptography/evp_private_key.hpp>
#include <velk/cryptography/x509_certificate.hpp>

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pkcs12.h>
#include <openssl/x509.h>

#include <array>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace velk::cryptography {
inline namespace v3 {
namespace detail {

struct openssl_deleter {
    void operator()(X509* value) const { X509_free(value); }
    void operator()(EVP_PKEY* value) const { EVP_PKEY_free(value); }
    void operator()(EVP_MD_CTX* value) const { EVP_MD_CTX_free(value); }
    void operator()(BIO* value) const { BIO_free(value); }
    void operator()(PKCS12* value) const { PKCS12_free(value); }
    void operator()(STACK_OF(X509) * value) const { sk_X509_pop_free(value, X509_free); }
};

template <class T>
using openssl_ptr = std::unique_ptr<T, openssl_deleter>;

// Empties this thread's OpenSSL error queue and gives its reasons joined by
// "; ", or `fallback` when the queue held none. Emptying it keeps old reasons
// from being blamed on a later, unrelated call (libcurl reads the same queue).
std::string take_openssl_errors(char const* fallback);

// False, with code 8 on the stack, for a value outside the enumeration.
bool is_known_encoding(encoding format, core::result::stack& stack);

// A read-only memory BIO over the bytes; they must outlive it.
openssl_ptr<BIO> memory_source(unsigned char const* data, std::size_t size);
// The bytes written so far into a memory BIO.
core::byte_array memory_contents(BIO* sink);

// The OpenSSL digest of an algorithm; null for a value outside the enumeration.
EVP_MD const* message_digest(cryptographic_hash::algorithm algorithm);

// Null for a key type that evp_private_key accepts, else the type's name.
char const* unsupported_key_type(EVP_PKEY const* key);

}  // namespace detail

struct x509_certificate::impl {
    explicit impl(detail::openssl_ptr<X509> certificate) : handle(std::move(certificate)) {}

    // The DER form, encoded at its first use and kept, since the certificate
    // never changes: a signer writes it into every signature. Empty when it
    // could not be encoded: the OpenSSL errors of that attempt are dropped,
    // and whoever reports the failure encodes anew.
    core::byte_array const& der() const;
    // The Base64 text of der(), kept the same way; empty when der() is.
    std::string const& der_base64() const;

    detail::openssl_ptr<X509> handle;

private:
    mutable std::once_flag der_once_;
    mutable core::byte_array der_;
    mutable std::once_flag der_base64_once_;
    mutable std::string der_base64_;
};

struct evp_private_key::impl {
    explicit impl(detail::openssl_ptr<EVP_PKEY> key) : handle(std::move(key)) {}

    // A signing context of each digest, set up at the key's first signature
    // with it and copied for every signature after: setting one up looks the
    // algorithms up under the global locks of OpenSSL's tables, which
    // threads signing side by side would share; a copy takes no lock. Null
    // when it could not be set up (each signature then sets up its own and
    // reports what fails).
    EVP_MD_CTX const* prepared_context(cryptographic_hash::algorithm algorithm, EVP_MD const* digest) const;

    detail::openssl_ptr<EVP_PKEY> handle;

private:
    static constexpr std::size_t digest_count = 3;
    mutable std::array<std::once_flag, digest_count> prepared_once_;
    mutable std::array<detail::openssl_ptr<EVP_MD_CTX>, digest_count> prepared_;
};

}  // namespace v3
}  // namespace velk::cryptography
