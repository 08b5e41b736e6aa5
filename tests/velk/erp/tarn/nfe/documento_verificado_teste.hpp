#pragma once

// A generated document signed and checked as its receiver would: the official
// schema of its layout and an independent verifier of the signature.

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <gtest/gtest.h>

#include <string>

namespace velk::test {

// Signs the document, checks it against the schema file `xsd` and xmlsec1;
// gives its text.
inline std::string assinado_e_verificado(erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal& documento,
                                         char const* xsd)
{
    core::result::stack report;
    documento.assinar(taxpayer_pkcs12(), report);
    EXPECT_FALSE(report.has_failed()) << report.to_string();
    std::string const texto = saved_text(documento.get_xml());

    auto const erros = validate_against_schema(schema_dir() / xsd, core::byte_array(texto));
    EXPECT_TRUE(erros.empty()) << testing::PrintToString(erros) << "\n" << texto;

    auto const verificacao = xmlsec_verify(texto, "http://www.portalfiscal.inf.br/nfe:infNFe",
                                           test_certificates::instance().ca_pem());
    EXPECT_TRUE(verificacao.success) << verificacao.output;
    return texto;
}

}  // namespace velk::test
