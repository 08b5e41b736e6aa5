#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/cryptography/encoding.hpp>

#include <memory>

namespace velk::cryptography {
inline namespace v3 {

// A private key, immutable. Copies share it. Only RSA, DSA, DH and EC keys are
// accepted, so get_type always has an answer for a key that is not empty.
class VELK_EXPORT evp_private_key {
public:
    enum class type : int {
        rsa = 0,
        dsa = 1,
        dh = 2,
        ec = 3,
    };

    // An empty key: get_type gives rsa, to_byte_array and sign fail.
    evp_private_key();

    // Reads an unencrypted key: DER as PKCS#8 or the key type's own structure,
    // PEM likewise. Fails with code 5 (unreadable, or an encrypted PEM), code 6
    // (another key type) or code 8 (encoding outside the enumeration).
    static evp_private_key from_byte_array(core::byte_array const& bytes, encoding format,
                                           core::result::stack& stack);

    bool empty() const;
    type get_type() const;

    // DER is the key type's own structure (what d2i_PrivateKey(type, ...)
    // reads back); PEM is unencrypted PKCS#8. Fails with code 5 on an empty
    // key, code 8 on an unknown encoding.
    core::byte_array to_byte_array(encoding format, core::result::stack& stack) const;

    // The raw signature of the data under the digest algorithm: PKCS#1 v1.5
    // for RSA, DER-encoded (r, s) for DSA and EC. Fails with code 10 (code 11
    // for an algorithm outside the enumeration).
    core::byte_array sign(cryptographic_hash::algorithm algorithm, core::byte_array const& data,
                          core::result::stack& stack) const;

private:
    friend class pkcs12;
    friend class x509_certificate;
    struct impl;
    std::shared_ptr<impl const> impl_;
};

}  // namespace v3
}  // namespace velk::cryptography
