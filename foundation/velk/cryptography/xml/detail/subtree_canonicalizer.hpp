#pragma once

// Internal: Canonical XML 1.0 of one element inside a parsed document, by
// libxml2's canonicaliser restricted to that element's subtree.

#include <velk/core/result/stack.hpp>

#include <libxml/tree.h>

#include <cstddef>
#include <functional>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class subtree_canonicalizer {
public:
    using sink = std::function<void(unsigned char const* data, std::size_t size)>;

    // Writes the canonical form of `apex` and its descendants, leaving out
    // `excluded` and everything under it (null to leave out nothing). As
    // inclusive canonicalisation wants, the namespace declarations and xml:
    // attributes in scope from the ancestors of `apex` appear on it. The output
    // goes to `output` in pieces. Fails with code 16.
    static bool write(xmlDoc* document, xmlNode* apex, xmlNode* excluded, bool with_comments, sink const& output,
                      core::result::stack& stack);
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
