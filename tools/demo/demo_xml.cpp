#include "demo_xml.hpp"

#include "demo_context.hpp"

#include <velk/xml/document.hpp>

namespace velk::demo {

void check(core::result::stack const& stack, char const* what)
{
    if (stack.has_failed()) {
        throw demo_failure{std::string(what) + ":\n" + stack.to_string()};
    }
}

std::string to_text(xml::element const& root, char const* what)
{
    core::result::stack stack;
    xml::document document;
    document.append_node(root, stack);
    std::string text = xml::document::save(document, stack).to_string();
    check(stack, what);
    return text;
}

}  // namespace velk::demo
