#include <velk/cryptography/xml/detail/node_arena.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

void* node_arena::allocate(std::size_t size, std::size_t alignment)
{
    if (size > large_size) {
        return large_.emplace_back(std::make_unique<std::byte[]>(size)).get();
    }
    std::size_t start = (used_ + alignment - 1) & ~(alignment - 1);
    if (current_ >= blocks_.size() || start + size > block_size) {
        next_block();
        start = 0;
    }
    used_ = start + size;
    return blocks_[current_].get() + start;
}

void node_arena::reset()
{
    if (blocks_.size() > kept_blocks) {
        blocks_.resize(kept_blocks);
    }
    large_.clear();
    current_ = 0;
    used_ = 0;
}

void node_arena::next_block()
{
    if (!blocks_.empty() && used_ != 0) {
        ++current_;
    }
    if (current_ >= blocks_.size()) {
        blocks_.push_back(std::make_unique<std::byte[]>(block_size));
    }
    used_ = 0;
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
