#include <velk/xml/mutable_node_range.hpp>

#include <velk/xml/element.hpp>
#include <velk/xml/node.hpp>

#include <utility>

namespace velk::xml {
inline namespace v3 {

mutable_node_range::iterator mutable_node_range::begin()
{
    return nodes_->begin();
}

mutable_node_range::iterator mutable_node_range::end()
{
    return nodes_->end();
}

std::size_t mutable_node_range::size() const
{
    return nodes_->size();
}

bool mutable_node_range::empty() const
{
    return nodes_->empty();
}

mutable_node_range::iterator mutable_node_range::erase(iterator position)
{
    return nodes_->erase(position);
}

mutable_node_range::iterator mutable_node_range::insert(iterator position, element const& child)
{
    return adopted(nodes_->emplace(position, child));
}

mutable_node_range::iterator mutable_node_range::insert(iterator position, element&& child)
{
    return adopted(nodes_->emplace(position, std::move(child)));
}

mutable_node_range::iterator mutable_node_range::insert(iterator position, node const& child)
{
    return adopted(nodes_->emplace(position, child));
}

mutable_node_range::iterator mutable_node_range::insert(iterator position, node&& child)
{
    return adopted(nodes_->emplace(position, std::move(child)));
}

mutable_node_range::iterator mutable_node_range::adopted(iterator position)
{
    if (owner_ != nullptr) {
        owner_->adopt_namespace(*position);
    }
    return position;
}

}  // namespace v3
}  // namespace velk::xml
