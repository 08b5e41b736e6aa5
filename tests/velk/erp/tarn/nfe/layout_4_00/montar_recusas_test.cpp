// Every value of the opening groups and the products that the builder can
// refuse: the code, its words, the argument "value" and the items beneath.

#include "layout_teste.hpp"
#include "recusa_teste.hpp"

#include <support/notas_fiscais.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace velk::erp::fiscal;
using velk::core::result::stack;
using velk::erp::tarn::nfe::layout_4_00::montar_layout_4_00;
using velk::test::alteracao;
using velk::test::no_destinatario;
using velk::test::no_emitente;
using velk::test::no_endereco_emitente;
using velk::test::bruto;
using velk::test::cnpj_interno;
using velk::test::conversor;
using velk::test::cpf_interno;
using velk::test::nome_do_caso;
using velk::test::recusa;
using velk::test::valor;

template <class Alterar>
alteracao na_entrega(Alterar alterar)
{
    return [alterar](nota_fiscal& nota) {
        local_entrega parte = *nota.get_local_entrega();
        alterar(parte);
        nota.set_local_entrega(parte);
    };
}

// The item with the import declaration.
template <class Alterar>
alteracao no_produto_importado(Alterar alterar)
{
    return [alterar](nota_fiscal& nota) { velk::test::no_produto(nota, 1, alterar); };
}

template <class Alterar>
alteracao na_declaracao_importacao(Alterar alterar)
{
    return no_produto_importado([alterar](produto& p) {
        std::vector<declaracao_importacao> declaracoes = p.get_declaracao_importacao();
        alterar(declaracoes.at(0));
        p.set_declaracao_importacao(declaracoes);
    });
}

template <class Alterar>
alteracao com_nota_produtor(Alterar alterar)
{
    return [alterar](nota_fiscal& nota) {
        nfp_referenciada referencia = nfp_referenciada()
                                          .set_uf_emitente(35)
                                          .set_ano_mes_emissao(2404)
                                          .set_cpf("51739284682")
                                          .set_ie("597012345110")
                                          .set_modelo(modelo_nf_produtor::nf_produtor)
                                          .set_serie("2")
                                          .set_numero(388);
        alterar(referencia);
        nota.set_nfp_referenciadas({referencia});
    };
}

template <class Alterar>
alteracao na_nota_referenciada(Alterar alterar)
{
    return [alterar](nota_fiscal& nota) {
        std::vector<nf_referenciada> referencias = nota.get_nf_referenciadas();
        alterar(referencias.at(0));
        nota.set_nf_referenciadas(referencias);
    };
}

// The key of a note received for export.
char const* const chave_recebida = "35240643917258000160550010000318771908172657";

std::vector<recusa> const recusas = {
    {"producer's CNPJ with punctuation",
     com_nota_produtor([](nfp_referenciada& r) { r.set_cnpj("51.739.284/0001-82"); }), 1,
     "O CNPJ do produtor rural está inválido", "51.739.284/0001-82", {conversor, cnpj_interno}},
    {"producer's CPF not a number", com_nota_produtor([](nfp_referenciada& r) { r.set_cpf("517.392.846-82"); }), 2,
     "O CPF do produtor rural está inválido", "517.392.846-82", {conversor, cpf_interno}},
    {"producer without document", com_nota_produtor([](nfp_referenciada& r) { r.set_cpf({}); }), 3,
     "Nenhum documento informado para o produtor rural", nullptr, {}},
    {"issuer's CNPJ with punctuation", no_emitente([](emitente& e) { e.set_cnpj("08.931.527/0001-41"); }), 4,
     "O CNPJ do emitente está inválido", "08.931.527/0001-41", {conversor, cnpj_interno}},
    {"issuer without CNPJ", no_emitente([](emitente& e) { e.set_cnpj({}); }), 5,
     "Nenhum documento informado para o emitente", nullptr, {}},
    {"recipient's CNPJ not a number", no_destinatario([](destinatario& d) { d.set_cnpj("abc"); }), 6,
     "O CNPJ do destinatario está inválido", "abc", {conversor, cnpj_interno}},
    {"recipient's CPF with punctuation", no_destinatario([](destinatario& d) { d.set_cpf("284.619.357-64"); }), 7,
     "O CPF do destinatario está inválido", "284.619.357-64", {conversor, cpf_interno}},
    {"recipient without document", no_destinatario([](destinatario& d) { d.set_cnpj({}); }), 9,
     "Nenhum documento informado para o destinatario", nullptr, {}},
    {"delivery CPF not a number", na_entrega([](local_entrega& l) { l.set_cpf("CPF 28461935764"); }), 10,
     "O CPF informado para entrega está inválido", "CPF 28461935764", {conversor, cpf_interno}},
    {"delivery CNPJ too long for a number", na_entrega([](local_entrega& l) { l.set_cnpj(std::string(65, '1')); }), 11,
     "O CNPJ informado para entrega está inválido", "11111111111111111111111111111111111111111111111111111111111111111",
     {conversor, cnpj_interno}},
    {"delivery without document", na_entrega([](local_entrega& l) { l.set_cnpj({}); }), 12,
     "Nenhum documento informado para entrega", nullptr, {}},
    {"environment", [](nota_fiscal& n) { n.set_indicador_ambiente(bruto<indicador_ambiente>(2)); }, 16,
     "O ambiente de emissão inválido", "2", {}},
    {"final consumer", [](nota_fiscal& n) { n.set_operacao_consumidor_final(bruto<consumidor_final>(2)); }, 17,
     "A indicação de consumidor final está inválida", "2", {}},
    {"presence", [](nota_fiscal& n) { n.set_indicador_presenca(bruto<indicador_presenca>(7)); }, 18,
     "A indicação de presença do consumidor está inválida", "7", {}},
    {"producer note model", com_nota_produtor([](nfp_referenciada& r) { r.set_modelo(bruto<modelo_nf_produtor>(2)); }),
     19, "O modelo da nota referenciada de produtor está inválido", "2", {}},
    {"receipt model",
     [](nota_fiscal& n) {
         n.set_cupons_referenciados({cupom_referenciado().set_modelo(bruto<modelo_cupom_fiscal>(3))});
     },
     20, "O modelo do cupom fiscal está inválido", "3", {}},
    {"tax regime", no_emitente([](emitente& e) { e.set_regime_fiscal(bruto<regime_tributario>(3)); }), 21,
     "O código do regime tributário está inválido", "3", {}},
    {"operation type", [](nota_fiscal& n) { n.set_tipo_operacao(bruto<tipo_operacao>(2)); }, 22,
     "Tipo de operação da nota inválido", "2", {}},
    {"destination", [](nota_fiscal& n) { n.set_indicador_operacao(bruto<destino_operacao>(3)); }, 23,
     "O destino de operação da nota está inválido", "3", {}},
    {"recipient's IE indicator",
     no_destinatario([](destinatario& d) { d.set_indicador_de_ie(bruto<indicador_ie_destinatario>(3)); }), 24,
     "O indicador da IE do destinatário está inválido", "3", {}},
    {"item total indicator",
     no_produto_importado([](produto& p) { p.set_indicador_item_compoe_valor_total(bruto<indicador_total>(2)); }), 25,
     "O indicador no item referente a composição total está inválida", "2", {}},
    {"import transport route",
     na_declaracao_importacao([](declaracao_importacao& d) { d.set_via_transporte(bruto<via_transporte>(13)); }), 26,
     "O tipo da via de transporte está inválida", "13", {}},
    {"import intermediation",
     na_declaracao_importacao([](declaracao_importacao& d) {
         d.set_forma_intermedio_importacao(bruto<forma_intermedio_importacao>(3));
     }),
     27, "O tipo de intermediação do transporte está inválido", "3", {}},
    {"type of issue", [](nota_fiscal& n) { n.set_tipo_emissao(static_cast<tipo_emissao>(8)); }, 45,
     "O tipo de emissão está inválido", "8", {}},
    {"contingency time without its reason",
     [](nota_fiscal& n) { n.set_data_contingencia(velk::test::horario_brasilia(2024, 5, 14, 8, 0, 5)); }, 45,
     "O tipo de emissão está inválido", "0", {}},
    {"contingency reason without its time, with the type of issue",
     [](nota_fiscal& n) {
         n.set_tipo_emissao(tipo_emissao::contingencia_svc_an)
             .set_justificativa_entrada_contingencia("Falha de comunicação com a SEFAZ");
     },
     45, "O tipo de emissão está inválido", "5", {}},
    {"key ending in a letter",
     [](nota_fiscal& n) { n.set_chave_44_digitos("3524050893152700014155001000000721130417625X"); }, 58,
     "A chave de acesso da nota fiscal está inválida", "3524050893152700014155001000000721130417625X", {}},
    {"indirect export without its registration",
     no_produto_importado([](produto& p) {
         p.set_grupo_exportacao({grupo_exportacao().set_chave_acesso_nfe_recebida(chave_recebida)});
     }),
     58, "A chave de acesso da nota fiscal está inválida", "O valor de nRE é obrigatório", {}},
    {"indirect export without the note received",
     no_produto_importado([](produto& p) {
         p.set_grupo_exportacao(
             {grupo_exportacao().set_numero_registro_exportacao(240001234567).set_quantidade_exportada(valor("1"))});
     }),
     58, "A chave de acesso da nota fiscal está inválida", "O valor de chNFe é obrigatório", {}},
    {"indirect export without its quantity",
     no_produto_importado([](produto& p) {
         p.set_grupo_exportacao({grupo_exportacao()
                                     .set_numero_ato_concessorio_drawback(20240003817)
                                     .set_numero_registro_exportacao(240001234567)
                                     .set_chave_acesso_nfe_recebida(chave_recebida)});
     }),
     58, "A chave de acesso da nota fiscal está inválida", "O valor de qExport é obrigatório", {}},
    {"key of 43 characters",
     [](nota_fiscal& n) { n.set_chave_44_digitos("3524050893152700014155001000000721130417625"); }, 58,
     "A chave de acesso da nota fiscal está inválida", "3524050893152700014155001000000721130417625", {}},
    {"key of 45 characters",
     [](nota_fiscal& n) { n.set_chave_44_digitos("352405089315270001415500100000072113041762511"); }, 58,
     "A chave de acesso da nota fiscal está inválida", "352405089315270001415500100000072113041762511", {}},
    {"issuer without CEP", no_endereco_emitente([](endereco& e) { e.set_cep({}); }), 59,
     "O CEP do emitente está inválido", "null", {}},
    {"recipient's phone with punctuation", no_destinatario([](destinatario& d) { d.set_telefone("(21) 2555-1234"); }),
     60, "O telefone do destinatario está inválido", "(21) 2555-1234", {conversor}},
    {"taxable quantity absent", no_produto_importado([](produto& p) { p.set_quantidade_tributavel({}); }), 61,
     "A quantidade tributável está inválida", "null", {}},
    {"purpose", [](nota_fiscal& n) { n.set_indicador_finalidade_emissao(bruto<finalidade_emissao>(4)); }, 64,
     "A finalidade de emissão está inválida", "4", {}},
    {"XML access without document", [](nota_fiscal& n) { n.set_autorizacoes_acesso_xml({autorizacao_acesso_xml()}); },
     66, "Documento inválido para fornecer acesso ao xml da nota", nullptr, {}},
    {"referenced note's CNPJ", na_nota_referenciada([](nf_referenciada& r) { r.set_cnpj("62084519/0001-52"); }), 67,
     "O CNPJ da nota referenciada é inválido", "62084519/0001-52", {conversor, cnpj_interno}},
    {"referenced note's series", na_nota_referenciada([](nf_referenciada& r) { r.set_serie("1A"); }), 68,
     "A série da nota referenciada é inválida", "1A", {conversor}},
    {"producer note's series", com_nota_produtor([](nfp_referenciada& r) { r.set_serie("B"); }), 69,
     "A série da nota referenciada de produtor é inválida", "B", {conversor}},
    {"issuer's state", no_endereco_emitente([](endereco& e) { e.set_uf("São Paulo"); }), 70,
     "O código de IBGE está inválido", "São Paulo", {conversor}},
    {"model", [](nota_fiscal& n) { n.set_modelo_emissao("A"); }, 71, "O modelo de emissão está inválido", "A",
     {conversor}},
    {"model of another document", [](nota_fiscal& n) { n.set_modelo_emissao("57"); }, 71,
     "O modelo de emissão está inválido", "57", {}},
    {"series longer than 16 characters", [](nota_fiscal& n) { n.set_serie("00000000000000001"); }, 72,
     "A série é inválida", "00000000000000001", {conversor}},
    {"issuer's phone with blanks", no_emitente([](emitente& e) { e.set_telefone("19 3234 5678"); }), 73,
     "O telefone do emitente está inválido", "19 3234 5678", {conversor}},
    {"importer's CNPJ",
     na_declaracao_importacao([](declaracao_importacao& d) { d.set_cnpj_importador("08.931.527/0001-41"); }), 74,
     "O CNPJ do importador está inválido", "08.931.527/0001-41", {conversor}},
    {"marketplace indicator", [](nota_fiscal& n) { n.set_indicador_intermediador(bruto<indicador_intermediador>(2)); },
     78, "O indicador de intermediador/marketplace está inválido", "2", {}},
    {"firearm type",
     no_produto_importado([](produto& p) {
         p.set_armas(std::vector<arma>{arma().set_tipo(tipo_arma::uso_permitido),
                                       arma().set_tipo(bruto<tipo_arma>(2))});
     }),
     81, "O tipo de arma está inválido", "2", {}},
};

class montar_recusa : public testing::TestWithParam<recusa> {};

TEST_P(montar_recusa, pushes_its_code_words_and_value_on_top_of_what_the_readers_pushed)
{
    velk::test::verificar_recusa(velk::test::nota_nfe_completa(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(codigos, montar_recusa, testing::ValuesIn(recusas), nome_do_caso);

TEST(montar_recusas, the_first_refusal_ends_the_building)
{
    nota_fiscal nota = velk::test::nota_nfe_completa();
    // ide is read before emit, and within ide mod comes before tpNF.
    nota.set_tipo_operacao(bruto<tipo_operacao>(9)).set_modelo_emissao("5x");
    no_emitente(nota, [](emitente& e) { e.set_cnpj({}); });

    stack report;
    montar_layout_4_00(nota, report);
    ASSERT_EQ(report.size(), 2u) << report.to_string();
    EXPECT_EQ(report.get_value(), 71);
}

TEST(montar_recusas, the_key_is_checked_only_after_the_type_of_issue)
{
    nota_fiscal nota = velk::test::nota_nfce_simples();
    nota.set_chave_44_digitos("").set_tipo_emissao(static_cast<tipo_emissao>(8));

    stack report;
    montar_layout_4_00(nota, report);
    EXPECT_EQ(report.get_value(), 45);
}

TEST(montar_recusas, an_unreadable_document_for_xml_access_stops_the_note_without_a_code_of_its_own)
{
    nota_fiscal nota = velk::test::nota_nfe_completa();
    nota.set_autorizacoes_acesso_xml({autorizacao_acesso_xml().set_cpf("284.619.357-64")});

    stack report;
    montar_layout_4_00(nota, report);
    ASSERT_EQ(report.size(), 2u) << report.to_string();
    EXPECT_STREQ(report.top().get_category().get_name(), "internal-errors");
    EXPECT_EQ(report.get_value(), 1);
    EXPECT_STREQ(report.top().get_message(), "O CPF informado é inválido");
}

}  // namespace
