#pragma once

#include <velk/core/export.hpp>

#include <array>
#include <cstddef>

namespace velk::xml {
inline namespace v3 {

// Memory for the small pieces a tree is made of: the contents of each element
// and the link of each child. A document of a few hundred elements takes and
// gives back about a thousand of them; each thread keeps the pieces it gave
// back, by size, and hands them out again before asking the allocator, so that
// one document after another costs no trip through malloc's bins. What a
// thread keeps is bounded, and is released when the thread ends.
//
// The usual take and give, a piece off or onto the thread's shelf, are inline:
// every element made and dropped takes and gives a few pieces, and a call each
// would cost more than the work.
class VELK_EXPORT block_memory {
public:
    static void* take(std::size_t size)
    {
        std::size_t const shelf = shelf_of(size);
        if (keep_pieces && shelf < shelf_count) {
            shelves& mine = kept_;
            if (free_block* const block = mine.first[shelf]) {
                mine.first[shelf] = block->next;
                mine.kept_bytes -= (shelf + 1) * step;
                return block;
            }
        }
        return take_new(size);
    }

    // `size` is the one the block was taken with.
    static void give(void* block, std::size_t size) noexcept
    {
        std::size_t const shelf = shelf_of(size);
        if (keep_pieces && shelf < shelf_count && block != nullptr) {
            shelves& mine = kept_;
            std::size_t const bytes = (shelf + 1) * step;
            if (mine.open && mine.kept_bytes + bytes <= kept_bytes_limit) {
                auto* const freed = static_cast<free_block*>(block);
                freed->next = mine.first[shelf];
                mine.first[shelf] = freed;
                mine.kept_bytes += bytes;
                return;
            }
        }
        give_back(block, size);
    }

private:
    // Sizes are kept in steps of 16 bytes, up to 192; larger requests go
    // straight to the allocator.
    static constexpr std::size_t step = 16;
    static constexpr std::size_t shelf_count = 12;
    // What one thread keeps at most: the pieces of a large NF-e, not more.
    static constexpr std::size_t kept_bytes_limit = std::size_t{4} << 20;

    // The sanitizers must see every piece freed and taken again: with them,
    // each piece goes to the allocator and back.
#if defined(__SANITIZE_ADDRESS__)
    static constexpr bool keep_pieces = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
    static constexpr bool keep_pieces = false;
#else
    static constexpr bool keep_pieces = true;
#endif
#else
    static constexpr bool keep_pieces = true;
#endif

    struct free_block {
        free_block* next;
    };

    // Plain data, so that it lives as long as the thread's storage and may be
    // reached from any destructor that runs while the thread ends.
    struct shelves {
        std::array<free_block*, shelf_count> first;
        std::size_t kept_bytes;
        // Whether pieces given back may be kept: once the release at the
        // thread's end is set up, and until it has run.
        bool open;
        bool closed;
    };

    // The shelf of a size; none (shelf_count or more) for 0, which wraps
    // around, and for sizes beyond the last step.
    static constexpr std::size_t shelf_of(std::size_t size) { return (size + step - 1) / step - 1; }

    // A piece from the allocator, the whole step for a size kept, so that it
    // serves any size of its shelf later.
    static void* take_new(std::size_t size);
    // What give does not keep inline: the first piece of a thread, which sets
    // up the release, and pieces that go back to the allocator.
    static void give_back(void* block, std::size_t size) noexcept;

    friend struct block_memory_release;

    static constinit thread_local shelves kept_;
};

}  // namespace v3
}  // namespace velk::xml
