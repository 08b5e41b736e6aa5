#pragma once

#include <velk/core/export.hpp>

#include <cstddef>

namespace velk::xml {
inline namespace v3 {

// Memory for the small pieces a tree is made of: the contents of each element
// and the link of each child. A document of a few hundred elements takes and
// gives back about a thousand of them; each thread keeps the pieces it gave
// back, by size, and hands them out again before asking the allocator, so that
// one document after another costs no trip through malloc's bins. What a
// thread keeps is bounded, and is released when the thread ends.
class VELK_EXPORT block_memory {
public:
    static void* take(std::size_t size);
    // `size` is the one the block was taken with.
    static void give(void* block, std::size_t size) noexcept;
};

}  // namespace v3
}  // namespace velk::xml
