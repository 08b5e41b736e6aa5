#pragma once

#include <velk/core/fatal.hpp>

#include <cstddef>
#include <utility>
#include <variant>

namespace velk::core {
inline namespace v3 {

// Tagged union with a valueless state. Visiting a valueless variant, or getting
// an alternative it does not hold, is a defect and ends the process.
template <class... Ts>
class variant : public std::variant<Ts...> {
public:
    using std::variant<Ts...>::variant;
    using std::variant<Ts...>::operator=;

    std::variant<Ts...>& base() & { return *this; }
    std::variant<Ts...> const& base() const& { return *this; }
    std::variant<Ts...>&& base() && { return std::move(*this); }
};

template <class Visitor, class... Ts>
decltype(auto) visit(Visitor&& visitor, variant<Ts...> const& value)
{
    if (value.valueless_by_exception()) {
        fatal_exit("[velk::core::visit]: Valueless variant found");
    }
    return std::visit(std::forward<Visitor>(visitor), value.base());
}

template <class Visitor, class... Ts>
decltype(auto) visit(Visitor&& visitor, variant<Ts...>& value)
{
    if (value.valueless_by_exception()) {
        fatal_exit("[velk::core::visit]: Valueless variant found");
    }
    return std::visit(std::forward<Visitor>(visitor), value.base());
}

template <std::size_t I, class... Ts>
decltype(auto) get(variant<Ts...> const& value)
{
    if (value.index() != I) {
        fatal_exit("[velk::core::detail::variant_impl::get_impl]: var.index() != I");
    }
    return *std::get_if<I>(&value.base());
}

template <std::size_t I, class... Ts>
decltype(auto) get(variant<Ts...>& value)
{
    if (value.index() != I) {
        fatal_exit("[velk::core::detail::variant_impl::get_impl]: var.index() != I");
    }
    return *std::get_if<I>(&value.base());
}

template <class T, class... Ts>
T const& get(variant<Ts...> const& value)
{
    T const* held = std::get_if<T>(&value.base());
    if (held == nullptr) {
        fatal_exit("[velk::core::detail::variant_impl::get_impl]: var.index() != I");
    }
    return *held;
}

template <class T, class... Ts>
T& get(variant<Ts...>& value)
{
    T* held = std::get_if<T>(&value.base());
    if (held == nullptr) {
        fatal_exit("[velk::core::detail::variant_impl::get_impl]: var.index() != I");
    }
    return *held;
}

}  // namespace v3
}  // namespace velk::core
