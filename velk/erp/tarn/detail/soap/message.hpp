#pragma once

#include <velk/erp/tarn/detail/soap/body_element.hpp>
#include <velk/erp/tarn/detail/soap/header_element.hpp>

#include <map>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::detail::soap {

// A whole SOAP envelope, in both directions. Default-constructed empty; an
// exchange that failed gives an empty one.
class message {
public:
    // Direct children of Body.
    std::vector<body_element> body;
    // Direct children of Header; none writes no Header tag.
    std::vector<header_element> header;
    // Prefix to URI, declared on the Envelope tag in key order; the empty key
    // is the default namespace.
    std::map<std::string, std::string> namespaces;
};

}  // namespace velk::erp::inline v4::tarn::detail::soap
