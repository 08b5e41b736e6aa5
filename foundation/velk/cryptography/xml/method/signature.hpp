#pragma once

#include <velk/core/export.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

// The SignatureMethod of SignedInfo: RSA (PKCS#1 v1.5) over a digest.
class VELK_EXPORT signature {
public:
    static signature from_rsa(cryptographic_hash::algorithm algorithm);

    cryptographic_hash::algorithm get_hash_algorithm() const { return algorithm_; }

private:
    explicit signature(cryptographic_hash::algorithm algorithm) : algorithm_(algorithm) {}
    cryptographic_hash::algorithm algorithm_;
};

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
