#include <velk/xml/block_memory.hpp>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace velk::xml {
inline namespace v3 {

constinit thread_local block_memory::shelves block_memory::kept_{};

// Gives everything kept back to the allocator when the thread ends; pieces
// given after that go straight back too.
struct block_memory_release {
    block_memory_release() = default;
    block_memory_release(block_memory_release const&) = delete;
    block_memory_release& operator=(block_memory_release const&) = delete;
    ~block_memory_release()
    {
        block_memory::shelves& kept = block_memory::kept_;
        kept.open = false;
        kept.closed = true;
        for (std::size_t shelf = 0; shelf < block_memory::shelf_count; ++shelf) {
            for (std::size_t index = 0; index < kept.count[shelf]; ++index) {
                ::operator delete(kept.slots[shelf][index]);
            }
            std::free(kept.slots[shelf]);
            kept.slots[shelf] = nullptr;
            kept.count[shelf] = 0;
            kept.room[shelf] = 0;
        }
        kept.kept_bytes = 0;
    }
};

namespace {

thread_local block_memory_release releaser;

}  // namespace

void* block_memory::take_new(std::size_t size)
{
    std::size_t const shelf = shelf_of(size);
    if (!keep_pieces || shelf >= shelf_count) {
        return ::operator new(size);
    }
    return ::operator new((shelf + 1) * step);
}

void block_memory::give_back(void* block, std::size_t size) noexcept
{
    if (block == nullptr) {
        return;
    }
    std::size_t const shelf = shelf_of(size);
    shelves& mine = kept_;
    std::size_t const bytes = (shelf + 1) * step;
    if (!keep_pieces || shelf >= shelf_count || mine.closed || mine.kept_bytes + bytes > kept_bytes_limit) {
        ::operator delete(block);
        return;
    }
    // The thread's first piece kept: touching the releaser makes the thread
    // release what it keeps when it ends.
    if (!mine.open) {
        static_cast<void>(&releaser);
        mine.open = true;
    }
    // A full stack grows to hold what the limit lets the shelf keep at most,
    // in steps; when it cannot, the piece goes back.
    if (mine.count[shelf] == mine.room[shelf]) {
        std::size_t const most = kept_bytes_limit / bytes;
        std::size_t const room = std::min(most, std::max<std::size_t>(256, mine.room[shelf] * 2));
        auto* const larger = static_cast<void**>(std::realloc(mine.slots[shelf], room * sizeof(void*)));
        if (larger == nullptr) {
            ::operator delete(block);
            return;
        }
        mine.slots[shelf] = larger;
        mine.room[shelf] = room;
    }
    mine.slots[shelf][mine.count[shelf]++] = block;
    mine.kept_bytes += bytes;
}

}  // namespace v3
}  // namespace velk::xml
