#pragma once

#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <filesystem>
#include <optional>
#include <string>

namespace velk::tools::tarn {

// The whole of a file; throws command_error when it cannot be read.
std::string read_file(std::filesystem::path const& file);
// Writes the text, replacing the file; throws command_error on failure.
void write_file(std::filesystem::path const& file, std::string const& text);
// The XML text of a tree as the library saves it; throws command_error.
std::string xml_text(xml::element const& root, std::string const& step);

// A file parsed as XML (no DTD, nothing fetched); throws command_error.
xml::document read_xml(std::filesystem::path const& file);
// The file the output of a step goes to: --saida when given, else the input's
// name with `suffix` in place of its extension, beside it.
std::filesystem::path output_file(std::filesystem::path const& input, std::optional<std::string> const& chosen,
                                  char const* suffix);

}  // namespace velk::tools::tarn
