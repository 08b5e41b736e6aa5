#pragma once

#include <string_view>

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Names as the XML namespaces recommendation allows them, checked byte-wise:
// ASCII letters, digits, "_", "-" and "." (no digit, "-" or "." first), and
// every byte of a multi-byte UTF-8 character, whose exact class is left to the
// parser that reads the document back.
bool is_valid_local_name(std::string_view name);
// A local name, or prefix ":" local name.
bool is_valid_qualified_name(std::string_view name);
// The same check, giving the prefix (empty when none) in the same pass.
bool is_valid_qualified_name(std::string_view name, std::string_view& prefix);

// The part before ":" (empty when none) and the part after it.
std::string_view prefix_of(std::string_view qualified_name);
std::string_view local_part_of(std::string_view qualified_name);

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
