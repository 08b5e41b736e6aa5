#pragma once

#include <velk/xml/element.hpp>

struct _xmlNode;

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Turns a parsed libxml2 element into this library's tree: names as written,
// resolved namespaces, declarations, attributes in document order, and text,
// CDATA, comments and processing instructions as they came. What lies below
// root is freed as it is converted: root is left without children.
class tree_converter {
public:
    static element convert(_xmlNode& root);
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
