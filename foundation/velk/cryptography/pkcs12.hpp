#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/evp_private_key.hpp>
#include <velk/cryptography/x509_certificate.hpp>

#include <memory>
#include <string>

namespace velk::cryptography {
inline namespace v3 {

// A taxpayer's A1 certificate: the certificate and its private key, as read
// from a PKCS#12 file (.pfx, .p12). Immutable; copies share the contents.
class VELK_EXPORT pkcs12 {
public:
    // An empty container: both getters give empty objects.
    pkcs12();

    // Reads the bytes of a PKCS#12 file protected by the password. Bundles in
    // the older export formats (RC2 or 3DES encryption) are read as well.
    // Fails with code 1 (not a readable bundle: empty, truncated, garbage, or
    // one whose password check asks more than ten million rounds),
    // code 2 (wrong password), code 3 (no certificate or no key inside),
    // code 6 (unsupported key type) or code 7 (key of another certificate).
    static pkcs12 from_byte_array(core::byte_array const& bytes, std::string const& password,
                                  core::result::stack& stack);

    // A container of a certificate and its key. Fails with code 3 when one is
    // empty, code 7 when they do not belong together.
    static pkcs12 from_certificate_and_key(x509_certificate const& certificate, evp_private_key const& key,
                                           core::result::stack& stack);

    bool empty() const;
    x509_certificate get_certificate() const;
    evp_private_key get_evp_private_key() const;

private:
    struct impl;
    std::shared_ptr<impl const> impl_;
};

}  // namespace v3
}  // namespace velk::cryptography
