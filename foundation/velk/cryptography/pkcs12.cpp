#include <velk/cryptography/pkcs12.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/detail/openssl.hpp>

#include <openssl/err.h>
#include <openssl/provider.h>

#include <cstdint>
#include <mutex>
#include <string>

namespace velk::cryptography {
inline namespace v3 {

namespace {

struct parsed_bundle {
    detail::openssl_ptr<EVP_PKEY> key;
    detail::openssl_ptr<X509> certificate;
    unsigned long error = 0;  // OpenSSL's last error code when parsing failed
};

parsed_bundle parse(PKCS12* bundle, std::string const& password)
{
    parsed_bundle result;
    EVP_PKEY* key = nullptr;
    X509* certificate = nullptr;
    STACK_OF(X509)* chain = nullptr;
    if (PKCS12_parse(bundle, password.c_str(), &key, &certificate, &chain) != 1) {
        result.error = ERR_peek_last_error();
        return result;
    }
    result.key.reset(key);
    result.certificate.reset(certificate);
    sk_X509_pop_free(chain, X509_free);
    return result;
}

// Certificate files exported by older tools are encrypted with RC2-40, which
// OpenSSL 3 keeps in its "legacy" provider. It is loaded on the first such
// file only, next to the default provider (which stays available).
bool load_legacy_algorithms()
{
    // Held for the life of the process, as the default context holds it.
    static OSSL_PROVIDER* legacy = nullptr;
    static std::once_flag once;
    std::call_once(once, [] { legacy = OSSL_PROVIDER_try_load(nullptr, "legacy", 1); });
    return legacy != nullptr;
}

// The password is checked by a key derived from it in as many rounds as the
// file says, and OpenSSL runs them all before it can tell a wrong password:
// about a million rounds a second, so a file that asks 2^31 holds the
// caller's thread for over half an hour. Certificate files are exported with
// 1 to 2,048 rounds (OpenSSL, Windows), 10,000 or 100,000 (Java, newer
// tools); ten million is a hundred times the strongest of these and costs a
// few seconds at worst, once, when the certificate is loaded.
constexpr std::int64_t most_mac_rounds = 10'000'000;

// Empty when the file's MAC asks a sane number of rounds (or has no MAC,
// which OpenSSL then does not check); else what is wrong, for the report.
std::string excessive_mac_rounds(PKCS12 const* bundle)
{
    ASN1_INTEGER const* rounds = nullptr;
    PKCS12_get0_mac(nullptr, nullptr, nullptr, &rounds, bundle);
    if (rounds == nullptr) {
        return {};  // absent: one round
    }
    std::int64_t count = 0;
    if (ASN1_INTEGER_get_int64(&count, rounds) != 1) {
        detail::take_openssl_errors("");
        return "número de iterações do MAC acima de " + std::to_string(most_mac_rounds) + ": mais de 64 bits";
    }
    if (count <= most_mac_rounds) {
        return {};  // below one OpenSSL does one round
    }
    return "número de iterações do MAC acima de " + std::to_string(most_mac_rounds) + ": " + std::to_string(count);
}

bool is_wrong_password(unsigned long error)
{
    return ERR_GET_LIB(error) == ERR_LIB_PKCS12 && ERR_GET_REASON(error) == PKCS12_R_MAC_VERIFY_FAILURE;
}

}  // namespace

struct pkcs12::impl {
    x509_certificate certificate;
    evp_private_key key;
};

pkcs12::pkcs12() = default;

pkcs12 pkcs12::from_byte_array(core::byte_array const& bytes, std::string const& password,
                               core::result::stack& stack)
{
    if (bytes.empty()) {
        core::result::fresh<cryptography_result_category::unreadable_pkcs12>(stack, "conteúdo vazio");
        return {};
    }
    unsigned char const* cursor = bytes.data();
    detail::openssl_ptr<PKCS12> bundle(d2i_PKCS12(nullptr, &cursor, static_cast<long>(bytes.size())));
    if (bundle == nullptr) {
        core::result::fresh<cryptography_result_category::unreadable_pkcs12>(stack,
                                                                             detail::take_openssl_errors("d2i_PKCS12"));
        return {};
    }
    if (std::string const excessive = excessive_mac_rounds(bundle.get()); !excessive.empty()) {
        core::result::fresh<cryptography_result_category::unreadable_pkcs12>(stack, excessive);
        return {};
    }
    parsed_bundle parsed = parse(bundle.get(), password);
    if (parsed.error != 0 && !is_wrong_password(parsed.error) && load_legacy_algorithms()) {
        detail::take_openssl_errors("");
        parsed = parse(bundle.get(), password);
    }
    if (parsed.error != 0) {
        if (is_wrong_password(parsed.error)) {
            detail::take_openssl_errors("");
            core::result::fresh<cryptography_result_category::wrong_password>(stack);
        } else {
            core::result::fresh<cryptography_result_category::unreadable_pkcs12>(
                stack, detail::take_openssl_errors("PKCS12_parse"));
        }
        return {};
    }
    if (parsed.certificate == nullptr || parsed.key == nullptr) {
        core::result::fresh<cryptography_result_category::incomplete_pkcs12>(
            stack, parsed.certificate == nullptr ? "certificado" : "chave privada");
        return {};
    }
    if (char const* type = detail::unsupported_key_type(parsed.key.get())) {
        core::result::fresh<cryptography_result_category::unsupported_key_type>(stack, type);
        return {};
    }
    x509_certificate certificate;
    certificate.impl_ =
        std::make_shared<x509_certificate::impl const>(std::move(parsed.certificate));
    evp_private_key key;
    key.impl_ = std::make_shared<evp_private_key::impl const>(std::move(parsed.key));
    return from_certificate_and_key(certificate, key, stack);
}

pkcs12 pkcs12::from_certificate_and_key(x509_certificate const& certificate, evp_private_key const& key,
                                        core::result::stack& stack)
{
    if (certificate.empty() || key.empty()) {
        core::result::fresh<cryptography_result_category::incomplete_pkcs12>(
            stack, certificate.empty() ? "certificado" : "chave privada");
        return {};
    }
    if (!certificate.matches(key)) {
        core::result::fresh<cryptography_result_category::key_mismatch>(stack, certificate.get_subject_common_name());
        return {};
    }
    pkcs12 bundle;
    bundle.impl_ = std::make_shared<impl const>(impl{certificate, key});
    return bundle;
}

bool pkcs12::empty() const
{
    return impl_ == nullptr;
}

x509_certificate pkcs12::get_certificate() const
{
    return impl_ == nullptr ? x509_certificate() : impl_->certificate;
}

evp_private_key pkcs12::get_evp_private_key() const
{
    return impl_ == nullptr ? evp_private_key() : impl_->key;
}

}  // namespace v3
}  // namespace velk::cryptography
