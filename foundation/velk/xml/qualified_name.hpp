#pragma once

#include <velk/core/export.hpp>

#include <string_view>

namespace velk::xml {
inline namespace v3 {

// Whether the text is a name an element or attribute of the tree can have:
// an XML name in UTF-8, optionally behind one prefix and ":". It is the rule
// document::save writes names by and the parser reads them by, so whoever
// turns a tree into text some other way (a canonical form for a signature)
// takes and refuses exactly the names the tree does.
VELK_EXPORT bool is_qualified_name(std::string_view name);

// The parts of a qualified name around its first ":": the prefix (empty when
// there is none) and the local part (the whole name when there is no prefix).
VELK_EXPORT std::string_view prefix_of(std::string_view qualified_name);
VELK_EXPORT std::string_view local_part_of(std::string_view qualified_name);

}  // namespace v3
}  // namespace velk::xml
