#pragma once

#include <velk/core/fatal.hpp>

#include <optional>
#include <type_traits>
#include <utility>

namespace velk::core {
inline namespace v3 {

// A T or nothing. Reading value() of an empty optional is a defect of the
// caller and ends the process with a fixed text instead of throwing.
template <class T>
class optional : public std::optional<T> {
public:
    using std::optional<T>::optional;

    optional() = default;
    optional(std::optional<T> const& other) : std::optional<T>(other) {}
    optional(std::optional<T>&& other) : std::optional<T>(std::move(other)) {}

    template <class U = T,
              std::enable_if_t<!std::is_same_v<std::remove_cvref_t<U>, optional> &&
                                   !std::is_same_v<std::remove_cvref_t<U>, std::nullopt_t> &&
                                   std::is_constructible_v<T, U> && std::is_assignable_v<T&, U>,
                               int> = 0>
    optional& operator=(U&& value)
    {
        std::optional<T>::operator=(std::forward<U>(value));
        return *this;
    }
    optional& operator=(std::nullopt_t) noexcept
    {
        this->reset();
        return *this;
    }

    T& value() &
    {
        if (!this->has_value()) {
            fatal_exit("BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &value()'");
        }
        return **this;
    }
    T const& value() const&
    {
        if (!this->has_value()) {
            fatal_exit("BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &value()'");
        }
        return **this;
    }
    T&& value() &&
    {
        if (!this->has_value()) {
            fatal_exit("BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &&value()'");
        }
        return std::move(**this);
    }
    T const&& value() const&&
    {
        if (!this->has_value()) {
            fatal_exit("BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &&value()'");
        }
        return std::move(**this);
    }
};

}  // namespace v3
}  // namespace velk::core
