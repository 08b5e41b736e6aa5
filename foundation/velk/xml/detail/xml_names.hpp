#pragma once

#include <cstddef>
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

// Where the ":" of a qualified name is, npos when none. Names are a few
// letters long: a plain loop finds the colon sooner than a call into the C
// library's search, and inline it costs every element made no call at all.
inline std::size_t colon_in(std::string_view qualified_name)
{
    for (std::size_t index = 0; index < qualified_name.size(); ++index) {
        if (qualified_name[index] == ':') {
            return index;
        }
    }
    return std::string_view::npos;
}

// The part before ":" (empty when none) and the part after it.
inline std::string_view prefix_of(std::string_view qualified_name)
{
    auto const colon = colon_in(qualified_name);
    return colon == std::string_view::npos ? std::string_view() : qualified_name.substr(0, colon);
}

inline std::string_view local_part_of(std::string_view qualified_name)
{
    auto const colon = colon_in(qualified_name);
    return colon == std::string_view::npos ? qualified_name : qualified_name.substr(colon + 1);
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
