#include <velk/xml/block_memory.hpp>

#include <array>
#include <cstdint>
#include <new>

namespace velk::xml {
inline namespace v3 {

namespace {

// Sizes are kept in steps of 16 bytes, up to 192; larger requests go straight
// to the allocator.
constexpr std::size_t step = 16;
constexpr std::size_t shelf_count = 12;
// What one thread keeps at most: the pieces of a large NF-e, not more.
constexpr std::size_t kept_bytes_limit = std::size_t{4} << 20;

struct free_block {
    free_block* next;
};

// Plain data, so that it lives as long as the thread's storage and may be
// reached from any destructor that runs while the thread ends.
struct shelves {
    std::array<free_block*, shelf_count> first;
    std::size_t kept_bytes;
    bool closed;
    // Whether the release at the thread's end is set up.
    bool release_set;
};

constinit thread_local shelves kept{};

// Gives everything kept back to the allocator when the thread ends; pieces
// given after that go straight back too.
struct release_at_exit {
    release_at_exit() = default;
    release_at_exit(release_at_exit const&) = delete;
    release_at_exit& operator=(release_at_exit const&) = delete;
    ~release_at_exit()
    {
        kept.closed = true;
        for (free_block*& first : kept.first) {
            while (first != nullptr) {
                free_block* const next = first->next;
                ::operator delete(first);
                first = next;
            }
        }
        kept.kept_bytes = 0;
    }
};

thread_local release_at_exit releaser;

// Apart from give, so that its usual path reaches the thread's shelves once
// (given back, they are not looked up again).
[[gnu::noinline]] shelves* set_release(shelves* mine)
{
    mine->release_set = true;
    static_cast<void>(&releaser);
    return mine;
}

// The shelf of a size; none (shelf_count or more) for 0, which wraps around,
// and for sizes beyond the last step.
constexpr std::size_t shelf_of(std::size_t size)
{
    return (size + step - 1) / step - 1;
}

// The sanitizers must see every piece freed and taken again: with them, each
// piece goes to the allocator and back.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool keep_pieces = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool keep_pieces = false;
#else
constexpr bool keep_pieces = true;
#endif
#else
constexpr bool keep_pieces = true;
#endif

}  // namespace

void* block_memory::take(std::size_t size)
{
    std::size_t const shelf = shelf_of(size);
    if (!keep_pieces || shelf >= shelf_count) {
        return ::operator new(size);
    }
    shelves& mine = kept;
    if (free_block* const block = mine.first[shelf]) {
        mine.first[shelf] = block->next;
        mine.kept_bytes -= (shelf + 1) * step;
        return block;
    }
    // The whole step, so that the piece serves any size of its shelf later.
    return ::operator new((shelf + 1) * step);
}

void block_memory::give(void* block, std::size_t size) noexcept
{
    if (block == nullptr) {
        return;
    }
    std::size_t const shelf = shelf_of(size);
    if (!keep_pieces || shelf >= shelf_count) {
        ::operator delete(block);
        return;
    }
    shelves* mine = &kept;
    std::size_t const bytes = (shelf + 1) * step;
    if (mine->closed || mine->kept_bytes + bytes > kept_bytes_limit) {
        ::operator delete(block);
        return;
    }
    // Touching it makes the thread release what it keeps when it ends; once
    // is enough, and spares every other piece the check of its guard.
    if (!mine->release_set) {
        mine = set_release(mine);
    }
    auto* const freed = static_cast<free_block*>(block);
    freed->next = mine->first[shelf];
    mine->first[shelf] = freed;
    mine->kept_bytes += bytes;
}

}  // namespace v3
}  // namespace velk::xml
