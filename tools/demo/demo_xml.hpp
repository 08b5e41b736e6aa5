#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::demo {

// Throws demo_failure with the report when the stack has failed.
void check(core::result::stack const& stack, char const* what);

// The element as a saved document, declaration first.
std::string to_text(xml::element const& root, char const* what);

}  // namespace velk::demo
