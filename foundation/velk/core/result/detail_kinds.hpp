#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/text_formatter.hpp>

#include <cstddef>
#include <string>

namespace velk::core {
inline namespace v3 {
namespace result {

// The kinds of the details of a code (row.hpp). A kind says what the caller
// passes (parameter), how many names of the row it uses (names), whether a
// trailing detail of this kind may be left out of the call (optional), and
// how the value becomes text arguments of the item (a static function
// store(item, first of its names, value)). A category with a detail of its own
// shape defines its kind beside its table, from this base.
template <class Parameter, std::size_t Names>
struct detail_kind {
    using parameter = Parameter;
    static constexpr std::size_t names = Names;
    static constexpr bool optional = false;
};

// A text, stored as it is.
struct VELK_EXPORT text : detail_kind<std::string, 1> {
    static void store(stack::item& item, char const* const* name, std::string const& value)
    {
        item.set_argument(name[0], value);
    }
};

// An integer or an enumeration, stored as its decimal number through the
// format "{0}"; an enumeration shows as its number, not its name.
template <class Number>
struct number : detail_kind<Number, 1> {
    static void store(stack::item& item, char const* const* name, Number value)
    {
        item.set_argument(name[0], text_formatter::format("{0}", value));
    }
};

// A detail that a call may leave out; when given, it is stored as Kind.
template <class Kind>
struct omissible : Kind {
    static constexpr bool optional = true;
};

// A code that has words but is never created: no call can give its detail.
struct VELK_EXPORT not_created {
    struct parameter {
        parameter() = delete;
    };
    static constexpr std::size_t names = 0;
    static constexpr bool optional = false;
    static void store(stack::item&, char const* const*, parameter const&) {}
};

}  // namespace result
}  // namespace v3
}  // namespace velk::core
