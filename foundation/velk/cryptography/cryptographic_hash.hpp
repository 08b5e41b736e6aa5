#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>

#include <cstddef>
#include <memory>
#include <string>

namespace velk::cryptography {
inline namespace v3 {

// A running message digest: feed bytes with update, read the digest with
// finish. finish works on a copy of the running state, so more bytes may be
// fed afterwards and finish called again.
class VELK_EXPORT cryptographic_hash {
public:
    enum class algorithm : int {
        sha1 = 0,
        sha256 = 1,
        sha512 = 2,
    };

    // An empty hash: update does nothing and finish fails.
    cryptographic_hash();
    cryptographic_hash(cryptographic_hash const& other);
    cryptographic_hash(cryptographic_hash&& other) noexcept;
    cryptographic_hash& operator=(cryptographic_hash const& other);
    cryptographic_hash& operator=(cryptographic_hash&& other) noexcept;
    ~cryptographic_hash();

    // Fails (code 11) on a value outside the enumeration, or code 9 when
    // OpenSSL cannot start the digest.
    static cryptographic_hash from_algorithm(algorithm value, core::result::stack& stack);

    // Lower-case name ("sha1", "sha256", "sha512"), or the number as text for
    // a value outside the enumeration.
    static std::string get_name(algorithm value);

    void update(core::byte_array const& bytes);
    void update(std::string const& text);
    void update(unsigned char const* data, std::size_t size);

    // The digest of everything fed so far (20 bytes for SHA-1). Fails with
    // code 9 on an empty hash or when OpenSSL failed along the way.
    core::byte_array finish(core::result::stack& stack) const;
    // As finish, ending the running state instead of finishing a copy of it:
    // the hash is empty afterwards. For the digest of one whole message,
    // which saves the copy.
    core::byte_array finish_once(core::result::stack& stack);

private:
    struct impl;

    // False, with the failure on the stack, when there is no digest to give.
    bool can_finish(core::result::stack& stack) const;

    std::unique_ptr<impl> impl_;
};

}  // namespace v3
}  // namespace velk::cryptography
