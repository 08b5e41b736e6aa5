// Every JSON note of the corpus becomes, through generate_document_4_00 and
// (when 3.10 can carry it) generate_document_3_10, a document that, signed, the official schema accepts and an independent
// verifier confirms; and a note that both roads can express gives the same
// document by either.

#include "notas_json_teste.hpp"
#include "../documento_verificado_teste.hpp"

#include <support/corpus_notas.hpp>
#include <support/xml_text.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::erp::tarn::nfe::protobuf::generate_document_3_10;
using velk::erp::tarn::nfe::protobuf::generate_document_4_00;
using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;

// NFC-e and NF-e of six states: every ICMS group the message has (ICMS00 with
// FCP, 10 with FCP-ST, 20 relieved, 30, 40 with CST 40 and 41, 51 deferred,
// 60 retained with the effective ICMS, 70, 90 with both blocks, the
// substitution passed on, CSOSN 101, 102, 201, 202, 500 and 900 with every
// block), PIS and COFINS in all three forms, fuel with pump readings,
// medicines, an export, a marketplace with places of pick-up and delivery,
// a return with the IPI given back in the older totals, offline contingency;
// cash with change, credit and debit cards, boleto, PIX, transfer and others.
std::vector<std::string> const notas = {
    "nfce_rj_mercado", "nfce_sp_padaria",   "nfe_pr_atacado",    "nfe_rs_industria",
    "nfe_sc_simples",  "nfe_rj_repasse",    "nfce_pr_posto",     "nfe_sp_marketplace",
    "nfe_sp_exportacao", "nfe_mg_farmacia", "nfe_sp_devolucao",  "nfce_rj_mercado_contingencia",
};

// The note generated in the layout, read back, signed and checked.
void conferir(std::string const& nome, velk::xml::document (*gerar)(velk::test::NotaFiscal const&, stack&),
              velk::erp::tarn::nfe::versao layout, char const* xsd)
{
    stack report;
    documento_fiscal documento = documento_fiscal::from_xml(gerar(velk::test::nota_json(nome), report), report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();
    EXPECT_EQ(documento.get_versao(), layout);
    velk::test::assinado_e_verificado(documento, xsd);
}

class corpus_json : public testing::TestWithParam<std::string> {};

TEST_P(corpus_json, signed_document_is_valid_for_the_schema_and_the_verifier)
{
    conferir(GetParam(), generate_document_4_00, velk::erp::tarn::nfe::versao::versao_4_00, "nfe_v4.00.xsd");
}

INSTANTIATE_TEST_SUITE_P(notas, corpus_json, testing::ValuesIn(notas),
                         [](testing::TestParamInfo<std::string> const& info) { return info.param; });

class corpus_json_3_10 : public testing::TestWithParam<std::string> {};

TEST_P(corpus_json_3_10, signed_document_is_valid_for_the_schema_and_the_verifier)
{
    conferir(GetParam(), generate_document_3_10, velk::erp::tarn::nfe::versao::versao_3_10, "nfe_v3.10.xsd");
}

// All but the substitution passed on with CST 60, which 3.10 has not; its
// refusal is among the differences of the layouts.
std::vector<std::string> notas_3_10()
{
    std::vector<std::string> lista = notas;
    std::erase(lista, "nfe_rj_repasse");
    return lista;
}

INSTANTIATE_TEST_SUITE_P(notas, corpus_json_3_10, testing::ValuesIn(notas_3_10()),
                         [](testing::TestParamInfo<std::string> const& info) { return info.param; });

// Every file of the folder is in the list above, so none is left untested.
TEST(corpus_json_pasta, every_file_is_a_case)
{
    std::vector<std::string> arquivos;
    for (auto const& entrada : std::filesystem::directory_iterator(velk::test::pasta_notas_json())) {
        arquivos.push_back(entrada.path().stem().string());
    }
    std::vector<std::string> esperados = notas;
    std::sort(arquivos.begin(), arquivos.end());
    std::sort(esperados.begin(), esperados.end());
    EXPECT_EQ(arquivos, esperados);
}

// The grocery's NFC-e as the model states it and as its JSON states it: the
// same document but for the program's version, which each road names its way.
TEST(corpus_json_rotas, the_grocery_gives_the_same_document_by_both_roads)
{
    auto const& corpus = velk::test::corpus_notas();
    auto const mercado =
        std::find_if(corpus.begin(), corpus.end(), [](auto const& nota) { return nota.nome == "nfce_rj_mercado"; });
    ASSERT_NE(mercado, corpus.end());
    stack report;
    documento_fiscal const pelo_modelo = documento_fiscal::from_nota_fiscal(
        mercado->criar(), velk::erp::tarn::nfe::versao::versao_4_00, report);
    velk::xml::document const pelo_json = generate_document_4_00(velk::test::nota_json("nfce_rj_mercado"), report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();

    std::string texto_modelo = velk::test::saved_text(pelo_modelo.get_xml());
    std::string texto_json = velk::test::saved_text(pelo_json);
    auto const sem_versao = [](std::string& texto, std::string const& versao) {
        std::string const tag = "<verProc>" + versao + "</verProc>";
        auto const posicao = texto.find(tag);
        ASSERT_NE(posicao, std::string::npos) << texto;
        texto.replace(posicao, tag.size(), "<verProc/>");
    };
    sem_versao(texto_modelo, "velkerp-4.0.0");
    sem_versao(texto_json, "2.02");
    EXPECT_EQ(texto_json, texto_modelo);
}

}  // namespace
