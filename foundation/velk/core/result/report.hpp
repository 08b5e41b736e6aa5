#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>

#include <utility>

namespace velk::core {
inline namespace v3 {
namespace result {

// The two ways a failure is reported.
//
// chain: the caller adds its meaning on top of what a callee already pushed,
//        so the callee's items stay beneath.
// fresh: the failing step is this one; whatever the stack held is replaced by
//        a stack with this one item.
//
// Both fill the item through the category's create() overload of code N, so a
// code can only be given the details its create() accepts.
template <class Category, int N, class... Args>
stack::item& chain(stack& target, Args&&... details)
{
    Category const& category = Category::instance();
    stack::item& item = target.push_item(category, N);
    category.create(item, code<Category, N>{}, std::forward<Args>(details)...);
    return item;
}

template <class Category, int N, class... Args>
stack::item& fresh(stack& target, Args&&... details)
{
    stack local;
    chain<Category, N>(local, std::forward<Args>(details)...);
    target = std::move(local);
    return *target.begin();
}

}  // namespace result
}  // namespace v3
}  // namespace velk::core
