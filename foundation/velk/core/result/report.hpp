#pragma once

#include <velk/core/result/stack.hpp>

#include <type_traits>
#include <utility>

namespace velk::core {
inline namespace v3 {
namespace result {

// The two ways a failure is reported, each by the name of its code, a row of
// the category's table (row.hpp):
//
// chain: the caller adds its meaning on top of what a callee already pushed,
//        so the callee's items stay beneath.
// fresh: the failing step is this one; whatever the stack held is replaced by
//        a stack with this one item.
//
// Both fill the item through the row, so a code can only be given the details
// its row accepts.
//
// A step's failure is read from the stack, has_failed(), right after the step:
// never from the value it returned (an empty text may be a valid one) nor from
// the depth of the stack. A helper that answers bool for the caller's && chains
// answers false exactly when it reported. A stack that has failed stops the
// chain: the next step is not taken.
template <auto const& Code, class... Details>
stack::item& chain(stack& target, Details&&... details)
{
    using row_type = std::remove_cvref_t<decltype(Code)>;
    stack::item& item = target.push_item(row_type::category_type::instance(), row_type::value);
    Code.create(item, std::forward<Details>(details)...);
    return item;
}

template <auto const& Code, class... Details>
stack::item& fresh(stack& target, Details&&... details)
{
    stack local;
    chain<Code>(local, std::forward<Details>(details)...);
    target = std::move(local);
    return *target.begin();
}

// Whether the stack has failed with this code on top: how a caller that
// forgives one failure recognises it.
template <auto const& Code>
bool failed_with(stack const& target)
{
    using row_type = std::remove_cvref_t<decltype(Code)>;
    return target.has_failed() && target.get_value() == row_type::value &&
           target.get_category() == row_type::category_type::instance();
}

}  // namespace result
}  // namespace v3
}  // namespace velk::core
