#pragma once

#include <string_view>

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Names by the XML 1.0 (fifth edition) and namespaces rules, over UTF-8: the
// very rule libxml2's parser reads names by, so a name the tree writes reads
// back, a name read from a document writes again, and the canonical form of a
// signature takes every name the tree holds. Text that is no UTF-8 is no name.
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
