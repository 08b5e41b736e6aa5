#include <velk/erp/tarn/detail/soap/envelope.hpp>

#include <velk/xml/document.hpp>

#include <string_view>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

constexpr std::string_view soap_envelope_namespace = "http://www.w3.org/2003/05/soap-envelope";

constexpr std::string_view xml_declarations[] = {
    R"(<?xml version="1.0" encoding="UTF-8"?>)",
    R"(<?xml version="1.0"?>)",
};

void write_header_element(core::byte_array& out, header_element const& tag)
{
    std::string const name = tag.get_qualified_name();
    out.append("<");
    out.append(name);
    if (!tag.value.empty()) {
        out.append(">");
        out.append(tag.value);
    } else if (tag.children.empty()) {
        out.append(" />");
        return;
    } else {
        out.append(">");
        for (header_element const& child : tag.children) {
            write_header_element(out, child);
        }
    }
    out.append("</");
    out.append(name);
    out.append(">");
}

bool write_tree(core::byte_array& out, xml::element const& tree, core::result::stack& result)
{
    xml::document document;
    if (!document.append_node(tree, result)) {
        return false;
    }
    core::byte_array const saved = xml::document::save(document, result);
    if (result.has_failed()) {
        return false;
    }
    core::byte_array const stripped = strip_xml_declaration(saved);
    out.append(stripped.begin(), stripped.end());
    return true;
}

}  // namespace

core::byte_array write_envelope(message const& request, core::result::stack& result)
{
    core::byte_array out;
    out.append(R"(<soap:Envelope xmlns:soap=")");
    out.append(soap_envelope_namespace);
    out.append("\"");
    for (auto const& [prefix, uri] : request.namespaces) {
        out.append(" xmlns");
        if (!prefix.empty()) {
            out.append(":");
            out.append(prefix);
        }
        out.append("=\"");
        out.append(uri);
        out.append("\"");
    }
    out.append(">");
    if (!request.header.empty()) {
        out.append("<soap:Header>");
        for (header_element const& tag : request.header) {
            write_header_element(out, tag);
        }
        out.append("</soap:Header>");
    }
    out.append("<soap:Body>");
    for (body_element const& part : request.body) {
        std::string const name = part.get_qualified_name();
        out.append("<");
        out.append(name);
        out.append(">");
        for (xml::element const& tree : part.children) {
            if (!write_tree(out, tree, result)) {
                return core::byte_array();
            }
        }
        out.append("</");
        out.append(name);
        out.append(">");
    }
    out.append("</soap:Body></soap:Envelope>");
    return out;
}

core::byte_array strip_xml_declaration(core::byte_array const& bytes)
{
    std::string_view const text = bytes.view();
    for (std::string_view const declaration : xml_declarations) {
        if (!text.starts_with(declaration)) {
            continue;
        }
        std::size_t position = declaration.size();
        while (position < text.size() &&
               (text[position] == '\r' || text[position] == '\n' || text[position] == '\t' || text[position] == ' ')) {
            ++position;
        }
        return core::byte_array(text.substr(position));
    }
    return bytes;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
