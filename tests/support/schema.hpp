#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/xml/document.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace velk::test {

// Validates a document against an XML Schema file, whose includes and imports
// are read from beside it, never from the network. Returns the problems found,
// "line N: message" each; empty when the document is valid. Parsed schemas are
// kept for the life of the process and shared between threads.
std::vector<std::string> validate_against_schema(std::filesystem::path const& xsd, core::byte_array const& xml);
// The same for a tree, as document::save writes it, and for an element saved
// as the root of a document of its own.
std::vector<std::string> validate_against_schema(std::filesystem::path const& xsd, xml::document const& document);
std::vector<std::string> validate_against_schema(std::filesystem::path const& xsd, xml::element const& root);

}  // namespace velk::test
