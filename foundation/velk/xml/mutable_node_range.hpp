#pragma once

#include <velk/core/export.hpp>

#include <cstddef>
#include <list>

namespace velk::xml {
inline namespace v3 {

class node;
class element;

// The children of an element in document order, changeable. Positions are
// iterators of a doubly linked list: they stay valid while other children are
// inserted or erased.
class VELK_EXPORT mutable_node_range {
public:
    using iterator = std::list<node>::iterator;

    // With an owner, inserted elements take its namespaces as
    // element::append_node gives them.
    explicit mutable_node_range(std::list<node>& nodes, element const* owner = nullptr)
        : nodes_(&nodes), owner_(owner)
    {
    }

    iterator begin();
    iterator end();
    std::size_t size() const;
    bool empty() const;

    // Erases the child at position; returns the position that followed it.
    iterator erase(iterator position);
    // Inserts in front of position (at end() it appends); returns the position
    // of the new child.
    iterator insert(iterator position, element const& child);
    iterator insert(iterator position, element&& child);
    iterator insert(iterator position, node const& child);
    iterator insert(iterator position, node&& child);

private:
    iterator adopted(iterator position);

    std::list<node>* nodes_;
    element const* owner_;
};

}  // namespace v3
}  // namespace velk::xml
