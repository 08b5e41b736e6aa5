#include <velk/erp/tarn/detail/soap/walker_soap_fault.hpp>

#include <velk/erp/tarn/detail/soap/envelope.hpp>
#include <velk/xml/document.hpp>

#include <algorithm>
#include <array>
#include <string_view>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

constexpr std::array<std::string_view, 2> detail_paths = {"Fault/detail", "Fault/Detail"};

constexpr std::array<std::string_view, 8> text_paths = {
    "Fault/faultcode",  "Fault/faultstring",        "Fault/faultactor", "Fault/Code/Value",
    "Fault/Code/Subcode/Value", "Fault/Reason/Text", "Fault/Node",       "Fault/Role",
};

bool is_one_of(std::string const& path, auto const& paths)
{
    return std::find(paths.begin(), paths.end(), path) != paths.end();
}

// "Fault/Reason/Text" -> "fault.reason.text"
std::string key_of(std::string const& path)
{
    std::string key = path;
    for (char& c : key) {
        if (c == '/') {
            c = '.';
        } else if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return key;
}

}  // namespace

std::string walker_soap_fault::escape(std::string_view bytes)
{
    static constexpr char hex_digits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(bytes.size());
    for (char const c : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        if (byte == '\\') {
            out += "\\\\";
        } else if (byte >= 32 && byte <= 126) {
            out += c;
        } else {
            out += "\\x";
            out += hex_digits[byte >> 4];
            out += hex_digits[byte & 0x0F];
        }
    }
    return out;
}

bool walker_soap_fault::on_enter_element(xml::element const& value, core::result::stack&)
{
    std::string const path = get_current_path();
    if (!is_one_of(path, detail_paths)) {
        return true;
    }
    // A detail that cannot be written leaves an empty value; the fault is
    // reported all the same.
    core::result::stack local;
    xml::document document;
    std::string saved;
    if (document.append_node(value, local)) {
        core::byte_array const bytes = xml::document::save(document, local);
        if (!local.has_failed()) {
            saved = escape(strip_xml_declaration(bytes).view());
        }
    }
    fault_[key_of(path)] = std::move(saved);
    return false;
}

void walker_soap_fault::on_text(xml::text const& value)
{
    store_text(value.get_contents());
}

void walker_soap_fault::on_cdata_section(xml::cdata_section const& value)
{
    store_text(value.get_contents());
}

void walker_soap_fault::store_text(std::string const& contents)
{
    std::string const path = get_current_path();
    if (is_one_of(path, text_paths)) {
        fault_[key_of(path)] = contents;
    }
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
