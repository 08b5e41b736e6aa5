#pragma once

#include <string>

namespace velk::erp::inline v4::tarn::detail::soap {

// What the two parts of a SOAP envelope share: a local tag name and the prefix
// of its namespace. Not an XML tree (that is velk::xml::element): these tags are
// written by hand into the envelope.
class element {
public:
    element() = default;
    element(std::string name, std::string prefix);
    element(element const&) = default;
    element(element&&) noexcept = default;
    element& operator=(element const&) = default;
    element& operator=(element&&) noexcept = default;
    virtual ~element();

    // prefix + ":" + name, or the name alone when there is no prefix.
    std::string get_qualified_name() const;

    std::string name;
    std::string prefix;
};

}  // namespace velk::erp::inline v4::tarn::detail::soap
