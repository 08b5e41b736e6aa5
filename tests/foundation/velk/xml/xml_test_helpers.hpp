#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/document.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace velk::test {

// A document parsed from text; the test fails when it does not parse.
inline xml::document parse_or_fail(std::string_view text)
{
    core::result::stack stack;
    xml::document parsed;
    EXPECT_TRUE(parsed.load(core::byte_array(text), stack)) << stack.to_string();
    return parsed;
}

// The saved text of a document; the test fails when it cannot be saved.
inline std::string saved_text(xml::document const& value)
{
    core::result::stack stack;
    std::string const text = xml::document::save(value, stack).to_string();
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return text;
}

// The saved text of an element as the root of a document of its own.
inline std::string saved_text(xml::element const& root)
{
    core::result::stack stack;
    xml::document holder;
    holder.append_node(root, stack);
    return saved_text(holder);
}

}  // namespace velk::test
