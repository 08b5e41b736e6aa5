#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/xml/tree_walker.hpp>

#include <string>
#include <unordered_map>

namespace velk::erp::inline v4::tarn::detail::soap {

// Collects the texts of a SOAP fault, of SOAP 1.1 (faultcode, faultstring,
// faultactor, detail) and of SOAP 1.2 (Code/Value, Code/Subcode/Value,
// Reason/Text, Node, Role, Detail), by local names, so prefixes do not matter.
// Keys are the paths from Fault in lower case with "." between the steps:
// "fault.reason.text". The detail tree is kept whole as escaped text under
// "fault.detail". The walk starts at the Fault element.
class walker_soap_fault final : public xml::tree_walker {
public:
    std::unordered_map<std::string, std::string> const& get_fault() const { return fault_; }

    // The saved bytes as printable ASCII: a backslash doubled, 32 to 126 kept,
    // any other byte as \xHH with upper-case digits.
    static std::string escape(std::string_view bytes);

protected:
    bool on_enter_element(xml::element const& value, core::result::stack& stack) override;
    void on_text(xml::text const& value) override;
    void on_cdata_section(xml::cdata_section const& value) override;

private:
    void store_text(std::string const& contents);

    std::unordered_map<std::string, std::string> fault_;
};

}  // namespace velk::erp::inline v4::tarn::detail::soap
