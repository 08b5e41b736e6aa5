#include <velk/xml/block_memory.hpp>

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
        for (block_memory::free_block*& first : kept.first) {
            while (first != nullptr) {
                block_memory::free_block* const next = first->next;
                ::operator delete(first);
                first = next;
            }
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
    // release what it keeps when it ends. Every later piece is kept inline.
    static_cast<void>(&releaser);
    mine.open = true;
    auto* const freed = static_cast<free_block*>(block);
    freed->next = mine.first[shelf];
    mine.first[shelf] = freed;
    mine.kept_bytes += bytes;
}

}  // namespace v3
}  // namespace velk::xml
