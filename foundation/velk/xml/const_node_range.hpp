#pragma once

#include <velk/core/export.hpp>

#include <cstddef>
#include <list>

namespace velk::xml {
inline namespace v3 {

class node;

// The children of an element in document order, read-only.
class VELK_EXPORT const_node_range {
public:
    using iterator = std::list<node>::const_iterator;
    using const_iterator = std::list<node>::const_iterator;

    explicit const_node_range(std::list<node> const& nodes) : nodes_(&nodes) {}

    const_iterator begin() const;
    const_iterator end() const;
    std::size_t size() const;
    bool empty() const;

private:
    std::list<node> const* nodes_;
};

}  // namespace v3
}  // namespace velk::xml
