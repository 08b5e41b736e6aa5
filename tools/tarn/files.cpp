#include "files.hpp"

#include "command_error.hpp"

#include <velk/xml/document.hpp>

#include <fstream>
#include <iterator>

namespace velk::tools::tarn {

std::string read_file(std::filesystem::path const& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw command_error::usage("leitura", "não foi possível ler " + file.string());
    }
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

void write_file(std::filesystem::path const& file, std::string const& text)
{
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    if (!out) {
        throw command_error::usage("gravação", "não foi possível gravar " + file.string());
    }
}

std::string xml_text(xml::element const& root, std::string const& step)
{
    core::result::stack stack;
    xml::document document;
    document.append_node(root, stack);
    std::string text = xml::document::save(document, stack).to_string();
    throw_if_failed(stack, step);
    return text;
}

xml::document read_xml(std::filesystem::path const& file)
{
    std::string const text = read_file(file);
    core::result::stack stack;
    xml::document document;
    document.load(core::byte_array(text), stack);
    throw_if_failed(stack, "leitura do XML");
    if (document.get_root_element() == nullptr) {
        throw command_error::usage("leitura do XML", file.string() + " não tem elemento raiz");
    }
    return document;
}

std::filesystem::path output_file(std::filesystem::path const& input, std::optional<std::string> const& chosen,
                                  char const* suffix)
{
    if (chosen) {
        return *chosen;
    }
    return input.parent_path() / (input.stem().string() + suffix);
}

}  // namespace velk::tools::tarn
