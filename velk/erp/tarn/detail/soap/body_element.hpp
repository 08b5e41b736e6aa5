#pragma once

#include <velk/erp/tarn/detail/soap/element.hpp>
#include <velk/xml/element.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::detail::soap {

// One direct child of the SOAP body (nfeDadosMsg going out, the result tag
// coming back) with the XML trees inside it.
class body_element : public element {
public:
    body_element() = default;
    body_element(std::string name, std::string prefix);

    std::vector<xml::element> children;
};

}  // namespace velk::erp::inline v4::tarn::detail::soap
