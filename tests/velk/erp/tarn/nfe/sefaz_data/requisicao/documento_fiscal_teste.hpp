#pragma once

// What the tests of documento_fiscal and of the QR code share: a document read
// from text, the names of an element's children, and the element xmlsec1
// looks for the Id on.

#include <support/xml_text.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velk::test {

inline constexpr char id_infnfe[] = "http://www.portalfiscal.inf.br/nfe:infNFe";

inline erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal documento_de_texto(std::string const& text)
{
    core::result::stack s;
    auto document = erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal::from_xml(parse_or_fail(text), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return document;
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

}  // namespace velk::test
