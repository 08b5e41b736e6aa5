// The notes of the corpus as documents of layout 3.10: signed, the official
// schema of 3.10 accepts them and an independent verifier confirms them.

#include "../documento_verificado_teste.hpp"

#include <support/corpus_notas.hpp>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::erp::tarn::nfe::versao;
using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
using velk::test::nota_do_corpus;

// The corpus but the notes the older layout cannot carry: the tax passed on
// to the state of destination with CST 60 came after it (its refusal is
// tested beside the other differences).
std::vector<nota_do_corpus> corpus_do_3_10()
{
    std::vector<nota_do_corpus> notas = velk::test::corpus_notas();
    std::erase_if(notas, [](nota_do_corpus const& nota) { return nota.nome == "nfe_rj_repasse"; });
    return notas;
}

class corpus_3_10 : public testing::TestWithParam<nota_do_corpus> {};

TEST_P(corpus_3_10, signed_document_is_valid_for_the_schema_and_the_verifier)
{
    stack report;
    documento_fiscal documento = documento_fiscal::from_nota_fiscal(GetParam().criar(), versao::versao_3_10, report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();
    EXPECT_EQ(documento.get_versao(), versao::versao_3_10);
    velk::test::assinado_e_verificado(documento, "nfe_v3.10.xsd");
}

std::string nome_da_nota(testing::TestParamInfo<nota_do_corpus> const& info)
{
    return info.param.nome;
}

INSTANTIATE_TEST_SUITE_P(notas, corpus_3_10, testing::ValuesIn(corpus_do_3_10()), nome_da_nota);

// Documents of 3.10 of other software (whose signatures no longer hold: they
// were indented after signing) read, and signed again by this library, with
// infNFe untouched, the schema of 3.10 and xmlsec1 accept them.
TEST(amostras_3_10, read_and_sign_again)
{
    for (char const* arquivo : {"messages/2017nfe_antiga_v310.xml", "messages/2017protocoled.xml"}) {
        SCOPED_TRACE(arquivo);
        velk::xml::element const raiz = velk::test::parse_element(velk::test::read_text(velk::test::sample(arquivo)));
        velk::xml::element const* nfe = velk::test::first_element_named(raiz, "NFe");
        ASSERT_NE(nfe, nullptr);
        std::string const antes = velk::test::saved_text(*velk::test::first_element_named(*nfe, "infNFe"));
        stack report;
        documento_fiscal documento = documento_fiscal::from_xml(*nfe, report);
        ASSERT_FALSE(report.has_failed()) << report.to_string();
        EXPECT_EQ(documento.get_versao(), versao::versao_3_10);
        velk::test::assinado_e_verificado(documento, "nfe_v3.10.xsd");
        EXPECT_EQ(velk::test::saved_text(*velk::test::first_element_named(documento.get_xml(), "infNFe")), antes);
    }
}

}  // namespace

namespace velk::test {

void PrintTo(nota_do_corpus const& nota, std::ostream* saida);

}  // namespace velk::test
