#include <velk/erp/tarn/detail/soap/client_certificate.hpp>

#include <velk/core/fatal.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/soap/connection.hpp>

#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <array>
#include <type_traits>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

// The address of an auth_impl is the address of its pkcs12 only in a
// standard-layout object.
static_assert(std::is_standard_layout_v<connection::auth_impl>);

// OpenSSL key type by evp_private_key::type.
constexpr std::array<int, 4> openssl_key_types = {EVP_PKEY_RSA, EVP_PKEY_DSA, EVP_PKEY_DH, EVP_PKEY_EC};

int openssl_key_type(cryptography::evp_private_key::type value)
{
    auto const index = static_cast<unsigned>(value);
    if (index >= openssl_key_types.size()) {
        core::fatal_exit("Valor inválido para o enum 'velk::cryptography::evp_private_key::type'");
    }
    return openssl_key_types[index];
}

// A failure of ours must not leave OpenSSL's queue of this thread dirty for
// whatever the thread does next.
CURLcode refuse(CURLcode code)
{
    ERR_clear_error();
    return code;
}

// use_client_certificate without the guard.
CURLcode hand_over_certificate(CURL* handle, void* ssl_context, void* auth)
{
    curl_tlssessioninfo* session = nullptr;
    CURLcode const asked = curl_easy_getinfo(handle, CURLINFO_TLS_SSL_PTR, &session);
    if (asked != CURLE_OK) {
        return asked;
    }
    if (session == nullptr || session->backend != CURLSSLBACKEND_OPENSSL) {
        return CURLE_NOT_BUILT_IN;
    }
    if (auth == nullptr) {
        return CURLE_BAD_FUNCTION_ARGUMENT;
    }
    auto const& bundle = *static_cast<cryptography::pkcs12 const*>(auth);
    auto* const context = static_cast<SSL_CTX*>(ssl_context);
    // A failure to write the certificate or the key shows as empty bytes,
    // which OpenSSL then refuses.
    core::result::stack local;

    core::byte_array const certificate_der =
        bundle.get_certificate().to_byte_array(cryptography::encoding::der, local);
    unsigned char const* cursor = certificate_der.data();
    X509* certificate = d2i_X509(nullptr, &cursor, static_cast<long>(certificate_der.size()));
    if (certificate == nullptr) {
        return refuse(CURLE_SSL_CERTPROBLEM);
    }
    int const certificate_taken = SSL_CTX_use_certificate(context, certificate);
    X509_free(certificate);  // the context holds its own reference
    if (certificate_taken != 1) {
        return refuse(CURLE_SSL_CERTPROBLEM);
    }

    cryptography::evp_private_key const key = bundle.get_evp_private_key();
    int const key_type = openssl_key_type(key.get_type());
    core::byte_array key_der = key.to_byte_array(cryptography::encoding::der, local);
    cursor = key_der.data();
    EVP_PKEY* private_key = d2i_PrivateKey(key_type, nullptr, &cursor, static_cast<long>(key_der.size()));
    OPENSSL_cleanse(key_der.data(), key_der.size());
    if (private_key == nullptr) {
        return refuse(CURLE_SSL_CONNECT_ERROR);
    }
    int const key_taken = SSL_CTX_use_PrivateKey(context, private_key);
    EVP_PKEY_free(private_key);
    if (key_taken != 1) {
        return refuse(CURLE_SSL_CONNECT_ERROR);
    }
    return CURLE_OK;
}

}  // namespace

CURLcode use_client_certificate(CURL* handle, void* ssl_context, void* auth)
{
    // libcurl is C: nothing may be thrown through it. Copying the bundle's
    // certificate and key can only fail for want of memory.
    try {
        return hand_over_certificate(handle, ssl_context, auth);
    } catch (...) {
        return refuse(CURLE_OUT_OF_MEMORY);
    }
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
