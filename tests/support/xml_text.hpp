#pragma once

// Trees to and from text for the tests; a test fails when its own text does
// not parse or its tree does not save.

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace velk::test {

inline xml::document parse_or_fail(std::string_view text)
{
    core::result::stack stack;
    xml::document parsed;
    EXPECT_TRUE(parsed.load(core::byte_array(text), stack)) << stack.to_string();
    return parsed;
}

// The root element of the text, a copy that outlives its document.
inline xml::element parse_element(std::string_view text)
{
    xml::document const parsed = parse_or_fail(text);
    return parsed.get_root_element() == nullptr ? xml::element() : *parsed.get_root_element();
}

// A document whose root is a copy of the element.
inline xml::document document_of(xml::element const& root)
{
    core::result::stack stack;
    xml::document holder;
    EXPECT_TRUE(holder.append_node(root, stack)) << stack.to_string();
    return holder;
}

// The saved text, XML declaration first.
inline std::string saved_text(xml::document const& value)
{
    core::result::stack stack;
    std::string const text = xml::document::save(value, stack).to_string();
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return text;
}

inline std::string saved_text(xml::element const& root)
{
    return saved_text(document_of(root));
}

// The saved text of the element alone, without the XML declaration.
inline std::string element_text(xml::element const& root)
{
    std::string const text = saved_text(root);
    return text.substr(text.find('\n') + 1);
}

// The names of the element's child elements, in order.
inline std::vector<std::string> child_element_names(xml::element const& parent)
{
    std::vector<std::string> names;
    for (xml::node const& child : parent.get_node_range()) {
        if (child.as_element() != nullptr) {
            names.push_back(child.as_element()->get_name());
        }
    }
    return names;
}

// The first element of that local name in the tree, depth first, the root
// included; null when there is none.
inline xml::element const* first_element_named(xml::element const& root, std::string const& name)
{
    if (root.get_name() == name) {
        return &root;
    }
    for (xml::node const& child : root.get_node_range()) {
        if (xml::element const* inner = child.as_element()) {
            if (xml::element const* found = first_element_named(*inner, name)) {
                return found;
            }
        }
    }
    return nullptr;
}

}  // namespace velk::test
