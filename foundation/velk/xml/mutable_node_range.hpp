#pragma once

#include <velk/core/export.hpp>
#include <velk/xml/node_list.hpp>

#include <cstddef>

namespace velk::xml {
inline namespace v3 {

class node;
class element;

// The children of an element in document order, changeable. Positions are
// iterators of a doubly linked list: they stay valid while other children are
// inserted or erased.
class VELK_EXPORT mutable_node_range {
public:
    using iterator = node_list::iterator;

    // With an owner, inserted elements take its namespaces as
    // element::append_node gives them.
    explicit mutable_node_range(node_list& nodes, element const* owner = nullptr)
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

    node_list* nodes_;
    element const* owner_;
};

}  // namespace v3
}  // namespace velk::xml
