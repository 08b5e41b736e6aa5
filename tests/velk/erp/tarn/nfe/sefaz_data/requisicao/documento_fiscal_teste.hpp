#pragma once

// What the tests of documento_fiscal and of the QR code share: a document read
// from text, and the element xmlsec1 looks for the Id on.

#include <support/xml_text.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <gtest/gtest.h>

#include <string>

namespace velk::test {

inline constexpr char id_infnfe[] = "http://www.portalfiscal.inf.br/nfe:infNFe";

inline erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal documento_de_texto(std::string const& text)
{
    core::result::stack s;
    auto document = erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal::from_xml(parse_or_fail(text), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return document;
}

}  // namespace velk::test
