#pragma once

// Internal: memory for the nodes of the libxml2 documents the signer builds,
// handed out in order and given back all at once.

#include <cstddef>
#include <memory>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class node_arena {
public:
    // Room for `size` bytes aligned to `alignment` (at most 16), good until
    // reset.
    void* allocate(std::size_t size, std::size_t alignment);

    // Forgets what was handed out; keeps a few blocks for the next document.
    void reset();

private:
    static constexpr std::size_t block_size = 64 * 1024;
    static constexpr std::size_t kept_blocks = 4;
    // Long texts (a namespace, a CDATA section with line ends to normalise)
    // get memory of their own.
    static constexpr std::size_t large_size = block_size / 4;

    void next_block();

    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    std::vector<std::unique_ptr<std::byte[]>> large_;
    std::size_t current_ = 0;
    std::size_t used_ = 0;
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
