#pragma once

#include <velk/core/export.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// KeyInfo. With add_X509 it holds X509Data/X509Certificate, which the signer
// fills with the signing certificate.
class VELK_EXPORT key_info {
public:
    key_info() = default;

    void add_X509() { x509_ = true; }
    bool has_X509() const { return x509_; }

private:
    bool x509_ = false;
};

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
