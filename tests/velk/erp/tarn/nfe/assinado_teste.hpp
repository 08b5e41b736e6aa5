#pragma once

// A generated document signed and checked as the authority would: the
// official schema of layout 4.00 and an independent verifier of the signature.

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

// Signs the document with the test taxpayer's certificate, then checks it
// against the schema and xmlsec1; gives its text.
inline std::string assinado_e_verificado(erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal& documento)
{
    core::result::stack report;
    documento.assinar(taxpayer_pkcs12(), report);
    EXPECT_FALSE(report.has_failed()) << report.to_string();
    std::string const texto = saved_text(documento.get_xml());

    auto const erros = validate_against_schema(schema_dir() / "nfe_v4.00.xsd", core::byte_array(texto));
    EXPECT_TRUE(erros.empty()) << testing::PrintToString(erros) << "\n" << texto;

    auto const verificacao = xmlsec_verify(texto, "http://www.portalfiscal.inf.br/nfe:infNFe",
                                           test_certificates::instance().ca_pem());
    EXPECT_TRUE(verificacao.success) << verificacao.output;
    return texto;
}

}  // namespace velk::test
