// Every note of the corpus becomes, through from_nota_fiscal, a document that,
// signed, the official schema accepts and an independent verifier confirms;
// and so does a tree with what only other sources fill.

#include "layout_teste.hpp"

#include "../documento_verificado_teste.hpp"

#include <support/corpus_notas.hpp>
#include <support/forma_canonica.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>

namespace {

using velk::core::result::stack;
using velk::erp::tarn::nfe::versao;
using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
using velk::test::nota_do_corpus;

class corpus : public testing::TestWithParam<nota_do_corpus> {};

TEST_P(corpus, signed_document_is_valid_for_the_schema_and_the_verifier)
{
    stack report;
    documento_fiscal documento = documento_fiscal::from_nota_fiscal(GetParam().criar(), versao::versao_4_00, report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();
    velk::test::assinado_e_verificado(documento, "nfe_v4.00.xsd");
}

// What the signature digests, the canonical infNFe and SignedInfo, written by
// the library straight from the tree, is what libxml2 writes from the saved
// document; and so is the whole NFe without its signature.
TEST_P(corpus, canonical_forms_are_libxml2s)
{
    stack report;
    documento_fiscal documento = documento_fiscal::from_nota_fiscal(GetParam().criar(), versao::versao_4_00, report);
    documento.assinar(velk::test::taxpayer_pkcs12(), report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();
    velk::xml::element const nfe = documento.get_xml();
    velk::xml::element const* assinatura = nfe.find_child("Signature");
    ASSERT_NE(assinatura, nullptr);
    velk::test::forma_canonica_libxml2 const referencia(nfe);
    struct parte {
        velk::xml::element const* alvo;
        velk::xml::element const* excluido;
    };
    for (parte const& atual : {parte{nfe.find_child("infNFe"), nullptr},
                               parte{assinatura->find_child("SignedInfo"), nullptr}, parte{&nfe, assinatura}}) {
        ASSERT_NE(atual.alvo, nullptr);
        SCOPED_TRACE(atual.alvo->get_name());
        std::string const esperada = referencia.de(*atual.alvo, atual.excluido, false);
        ASSERT_EQ(esperada.rfind("falha", 0), std::string::npos) << esperada;
        EXPECT_EQ(velk::test::forma_canonica_propria(nfe, *atual.alvo, atual.excluido, false), esperada);
    }
}

// The manufacturer's CNPJ, which only other sources than the model fill,
// beside the CEST of the brake pads of the industry's note.
TEST(corpus_arvore, the_manufacturers_cnpj_is_CNPJFab)
{
    namespace layout = velk::erp::tarn::nfe::layout_4_00;
    auto const& notas = velk::test::corpus_notas();
    auto const industria =
        std::find_if(notas.begin(), notas.end(), [](auto const& nota) { return nota.nome == "nfe_rs_industria"; });
    ASSERT_NE(industria, notas.end());
    layout::layout_4_00 arvore = velk::test::arvore_de(industria->criar());
    arvore.det.at(0).prod.CNPJFab = 92615847000107;
    stack report;
    documento_fiscal documento = documento_fiscal::from_xml(velk::test::documento_de(arvore), report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();
    std::string const texto = velk::test::assinado_e_verificado(documento, "nfe_v4.00.xsd");
    EXPECT_NE(texto.find("<CEST>0107300</CEST><CNPJFab>92615847000107</CNPJFab><CFOP>"), std::string::npos) << texto;
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
