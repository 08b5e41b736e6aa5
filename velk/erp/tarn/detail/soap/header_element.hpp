#pragma once

#include <velk/erp/tarn/detail/soap/element.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::detail::soap {

// One tag of the SOAP header: a text value, or nested tags when the value is
// empty. Values are written as they are, without escaping.
class header_element : public element {
public:
    header_element() = default;
    header_element(std::string name, std::string prefix, std::string value = {});

    std::string value;
    std::vector<header_element> children;
};

}  // namespace velk::erp::inline v4::tarn::detail::soap
