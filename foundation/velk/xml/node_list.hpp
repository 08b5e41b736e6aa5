#pragma once

#include <velk/xml/block_memory.hpp>

#include <cstddef>
#include <list>
#include <new>

namespace velk::xml {
inline namespace v3 {

class node;

// The children of an element: a doubly linked list whose links come from
// block_memory.
template <class T>
struct node_allocator {
    using value_type = T;

    node_allocator() noexcept = default;
    template <class U>
    node_allocator(node_allocator<U> const&) noexcept
    {
    }

    T* allocate(std::size_t count)
    {
        return static_cast<T*>(count == 1 ? block_memory::take(sizeof(T)) : ::operator new(count * sizeof(T)));
    }

    void deallocate(T* block, std::size_t count) noexcept
    {
        if (count == 1) {
            block_memory::give(block, sizeof(T));
        } else {
            ::operator delete(block);
        }
    }

    template <class U>
    bool operator==(node_allocator<U> const&) const noexcept
    {
        return true;
    }
};

using node_list = std::list<node, node_allocator<node>>;

}  // namespace v3
}  // namespace velk::xml
