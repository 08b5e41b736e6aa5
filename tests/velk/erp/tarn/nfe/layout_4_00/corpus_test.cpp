// Every note of the corpus becomes a document that, signed, the official
// schema accepts and an independent verifier confirms.

#include "layout_teste.hpp"

#include <support/assinatura_nfe.hpp>
#include <support/corpus_notas.hpp>
#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

using velk::core::result::stack;
using velk::test::nota_do_corpus;

class corpus : public testing::TestWithParam<nota_do_corpus> {};

velk::cryptography::pkcs12 const& certificado()
{
    static velk::cryptography::pkcs12 const pkcs12 = [] {
        auto const& certificados = velk::test::test_certificates::instance();
        stack report;
        auto lido = velk::cryptography::pkcs12::from_byte_array(certificados.pkcs12(), certificados.password(), report);
        EXPECT_FALSE(report.has_failed()) << report.to_string();
        return lido;
    }();
    return pkcs12;
}

TEST_P(corpus, signed_document_is_valid_for_the_schema_and_the_verifier)
{
    velk::xml::document documento = velk::test::documento_de(GetParam().criar());
    ASSERT_NE(documento.get_root_element(), nullptr);

    stack report;
    ASSERT_TRUE(velk::test::sign_nfe(documento, certificado(), report)) << report.to_string();
    std::string const texto = velk::xml::document::save(documento, report).to_string();
    ASSERT_FALSE(report.has_failed()) << report.to_string();

    auto const erros = velk::test::validate_against_schema(velk::test::schema_dir() / "nfe_v4.00.xsd", documento);
    EXPECT_TRUE(erros.empty()) << testing::PrintToString(erros) << "\n" << texto;

    auto const verificacao = velk::test::xmlsec_verify(texto, "http://www.portalfiscal.inf.br/nfe:infNFe",
                                                       velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verificacao.success) << verificacao.output;
}

std::string nome_da_nota(testing::TestParamInfo<nota_do_corpus> const& info)
{
    return info.param.nome;
}

INSTANTIATE_TEST_SUITE_P(notas, corpus, testing::ValuesIn(velk::test::corpus_notas()), nome_da_nota);

}  // namespace

namespace velk::test {

void PrintTo(nota_do_corpus const& nota, std::ostream* saida)
{
    *saida << nota.nome;
}

}  // namespace velk::test
