#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Writes a tree as XML, without any formatting: declarations first (as
// declared, plus those a detached part needs, see element), then attributes in
// their order; text escaped as & < > and carriage return, attribute values as
// & < " and tab, line feed, carriage return; CDATA as written, split around a
// "]]>" inside; an element without children as <name/>.
class serializer {
public:
    // Appends to `out`. Fails (code 3) on an element whose name is empty or
    // invalid; `out` then holds a part of the tree.
    static bool write(element const& root, core::byte_array& out, core::result::stack& stack);
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
