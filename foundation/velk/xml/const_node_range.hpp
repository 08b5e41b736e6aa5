#pragma once

#include <velk/core/export.hpp>
#include <velk/xml/node_list.hpp>

#include <cstddef>

namespace velk::xml {
inline namespace v3 {

class node;

// The children of an element in document order, read-only.
class VELK_EXPORT const_node_range {
public:
    using iterator = node_list::const_iterator;
    using const_iterator = node_list::const_iterator;

    explicit const_node_range(node_list const& nodes) : nodes_(&nodes) {}

    const_iterator begin() const;
    const_iterator end() const;
    std::size_t size() const;
    bool empty() const;

private:
    node_list const* nodes_;
};

}  // namespace v3
}  // namespace velk::xml
