#pragma once

#include <velk/xml/element.hpp>
#include <velk/xml/node.hpp>

#include <list>
#include <memory>
#include <string>
#include <vector>

namespace velk::xml {
inline namespace v3 {

// What an element holds. The local name is kept beside the qualified one
// because get_name() hands out a reference to it.
struct element::impl {
    std::string qualified_name;
    std::string local_name;
    std::string namespace_uri;
    std::vector<attribute> attributes;
    std::vector<namespace_id> namespaces;
    std::list<node> children;

    // Sets both names from the name as written ("soap:Body").
    void set_name(std::string name);
    // The prefix as a view into the qualified name; empty when none.
    std::string_view prefix() const;
};

namespace detail {

// Inside access for the parser of this library, which fills elements without
// the checks that calls from outside go through (the parser made them already).
class element_access {
public:
    using contents_type = element::impl;

    static element make(std::unique_ptr<contents_type> contents) { return element(std::move(contents)); }
    // Null for a moved-from element.
    static contents_type* contents(element& value) { return value.impl_.get(); }
    static contents_type const* contents(element const& value) { return value.impl_.get(); }
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
