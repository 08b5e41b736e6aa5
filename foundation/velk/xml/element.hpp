#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/xml/attribute.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/const_node_range.hpp>
#include <velk/xml/mutable_node_range.hpp>
#include <velk/xml/namespace_id.hpp>
#include <velk/xml/text.hpp>

#include <memory>
#include <string>
#include <vector>

namespace velk::xml {
inline namespace v3 {

class node;

// An XML element with value semantics: a copy is a deep, independent tree that
// outlives the document it came from. The object is one pointer wide.
//
// Names are kept as written ("soap:Body"); get_name() gives the local name,
// and every lookup by name compares local names, so a prefix never matters.
class element {
public:
    // An element with an empty name: the placeholder of responses not read.
    element();
    explicit element(std::string const& name);
    element(std::string const& name, text const& contents);
    element(std::string const& name, cdata_section const& contents);

    element(element const& other);
    element(element&& other) noexcept;
    element& operator=(element const& other);
    element& operator=(element&& other) noexcept;
    ~element();

    // Fails (xml_result_category) on an invalid name or an attribute of the
    // same name already present; the element is then unchanged.
    bool append_attribute(attribute const& value, core::result::stack& stack);
    // Fails on a prefix already declared on this element, or an invalid prefix.
    bool append_namespace(namespace_id const& value, core::result::stack& stack);

    void append_node(element const& child);
    void append_node(element&& child);
    void append_node(text&& child);
    void append_node(text const& child);
    void append_node(cdata_section const& child);
    void append_node(node const& child);

    // The attribute of that local name: with an empty namespace_uri one without
    // a prefix, else one whose resolved namespace is namespace_uri. Null when
    // absent.
    attribute* find_attribute(std::string const& namespace_uri, std::string const& name);
    attribute const* find_attribute(std::string const& namespace_uri, std::string const& name) const;

    // The text and CDATA children joined in order (not those of descendants).
    std::string get_contents() const;
    // Replaces all children by one text node with these contents.
    void set_contents(std::string const& contents);

    // Local name, without prefix.
    std::string const& get_name() const;
    std::string const& get_qualified_name() const;
    std::string get_prefix() const;
    // The element's namespace as resolved when parsed; for an element built in
    // memory, the default namespace it declares itself (or empty).
    std::string const& get_namespace_uri() const;
    void set_namespace_uri(std::string const& uri);

    std::vector<attribute> const& get_attributes() const;
    std::vector<namespace_id> const& get_namespaces() const;

    mutable_node_range get_node_range() &;
    const_node_range get_node_range() const&;

    // The first child element of that local name, or null.
    element* find_child(std::string const& name);
    element const* find_child(std::string const& name) const;

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace v3
}  // namespace velk::xml

#include <velk/xml/node.hpp>
