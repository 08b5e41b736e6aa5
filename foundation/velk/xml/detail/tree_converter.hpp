#pragma once

#include <velk/xml/element.hpp>

struct _xmlNode;

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Turns a parsed libxml2 element into this library's tree: names as written,
// resolved namespaces, declarations, attributes in document order, and text,
// CDATA, comments and processing instructions as they came.
class tree_converter {
public:
    static element convert(_xmlNode const& root);
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
