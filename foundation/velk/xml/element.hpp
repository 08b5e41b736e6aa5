#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/attribute.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/const_node_range.hpp>
#include <velk/xml/mutable_node_range.hpp>
#include <velk/xml/namespace_id.hpp>
#include <velk/xml/text.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velk::xml {
inline namespace v3 {

class node;
class mutable_node_range;

namespace detail {
class element_access;
}

// An XML element with value semantics: a copy is a deep, independent tree that
// outlives the document it came from. The object is one pointer wide.
//
// Names are kept as written ("soap:Body"); get_name() gives the local name,
// and every lookup by name compares local names, so a prefix never matters.
//
// Namespaces travel with the element: a parsed element keeps the URI its
// prefix resolved to, and an element put under a parent whose namespace is
// known takes that namespace when it has none of its own (an unprefixed child
// of an element that declares a default namespace, for instance). Saving a
// copy of a part of a tree therefore declares what the part needs.
//
// A moved-from element is only good for destruction or assignment.
class VELK_EXPORT element {
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

    // Fails (xml_result_category, fresh report) on an invalid name or one of a
    // namespace declaration, "xmlns" or "xmlns:p" (code 3), or an attribute of
    // the same name already present (code 4); the element is then unchanged.
    bool append_attribute(attribute const& value, core::result::stack& stack);
    // Fails on a prefix already declared on this element (code 5), or an
    // invalid prefix: not a name, "xml", "xmlns", or a prefix with an empty URI
    // or a URI without a scheme (code 3). Declaring the element's own prefix
    // sets its namespace.
    bool append_namespace(namespace_id const& value, core::result::stack& stack);

    // Appends a child as the last one. An element child without a namespace
    // takes the one its prefix names here (see above).
    void append_node(element const& child);
    void append_node(element&& child);
    void append_node(text&& child);
    void append_node(text const& child);
    void append_node(cdata_section const& child);
    void append_node(cdata_section&& child);
    void append_node(node const& child);
    void append_node(node&& child);
    // Appends a new child element of that name as the last child and gives it
    // back to be filled in place, for a tree built from the root down. It
    // takes at once the namespace its prefix names here, as append_node gives
    // it; the name is kept as given, as by the constructor.
    element& append_element(std::string_view name);
    // Appends a text child of these contents, made in place: the same as
    // append_node(text(contents)) without the text moved in.
    void append_text(std::string const& contents);
    void append_text(std::string&& contents);

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
    // memory, the namespace it declares for its own prefix or took from its
    // parent (or empty). Saving declares it where the tree does not.
    std::string const& get_namespace_uri() const;
    // Sets the namespace; children without one of their own take it too.
    void set_namespace_uri(std::string const& uri);

    std::vector<attribute> const& get_attributes() const;
    std::vector<namespace_id> const& get_namespaces() const;

    mutable_node_range get_node_range() &;
    const_node_range get_node_range() const&;

    // The first child element of that local name, or null.
    element* find_child(std::string const& name);
    element const* find_child(std::string const& name) const;

private:
    friend class detail::element_access;
    friend class mutable_node_range;

    struct impl;

    explicit element(std::unique_ptr<impl> contents);

    // Gives a child element just put under this one the namespace its prefix
    // names here, when it has none (recursively for its own children).
    void adopt_namespace(node& child) const;

    std::unique_ptr<impl> impl_;
};

}  // namespace v3
}  // namespace velk::xml

#include <velk/xml/node.hpp>
