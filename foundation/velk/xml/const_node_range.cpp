#include <velk/xml/const_node_range.hpp>

#include <velk/xml/node.hpp>

namespace velk::xml {
inline namespace v3 {

const_node_range::const_iterator const_node_range::begin() const
{
    return nodes_->begin();
}

const_node_range::const_iterator const_node_range::end() const
{
    return nodes_->end();
}

std::size_t const_node_range::size() const
{
    return nodes_->size();
}

bool const_node_range::empty() const
{
    return nodes_->empty();
}

}  // namespace v3
}  // namespace velk::xml
