#pragma once

// What the tests of documento_fiscal share: the tree as text, the names of
// its children, and the taxpayer's certificate that signs.

#include <support/test_certificates.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velk::test {

// The element whose Id the signature of an NF-e refers to, for xmlsec1.
inline constexpr char id_infnfe[] = "http://www.portalfiscal.inf.br/nfe:infNFe";

// The element saved as a document, declaration first.
inline std::string text_of(xml::element const& root)
{
    core::result::stack s;
    xml::document document;
    document.append_node(root, s);
    return xml::document::save(document, s).to_string();
}

inline std::vector<std::string> child_element_names(xml::element const& parent)
{
    std::vector<std::string> names;
    for (xml::node const& child : parent.get_node_range()) {
        if (child.as_element() != nullptr) {
            names.push_back(child.as_element()->get_name());
        }
    }
    return names;
}

inline cryptography::pkcs12 taxpayer()
{
    auto const& certificates = test_certificates::instance();
    core::result::stack s;
    auto bundle = cryptography::pkcs12::from_byte_array(certificates.pkcs12(), certificates.password(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return bundle;
}

}  // namespace velk::test
