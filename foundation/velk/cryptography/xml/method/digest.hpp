#pragma once

#include <velk/core/export.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

// The DigestMethod of a reference.
class VELK_EXPORT digest {
public:
    static digest from_sha1();
    static digest from_algorithm(cryptographic_hash::algorithm algorithm);

    cryptographic_hash::algorithm get_algorithm() const { return algorithm_; }

private:
    explicit digest(cryptographic_hash::algorithm algorithm) : algorithm_(algorithm) {}
    cryptographic_hash::algorithm algorithm_;
};

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
