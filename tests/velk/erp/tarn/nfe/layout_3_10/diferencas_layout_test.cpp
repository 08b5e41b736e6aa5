// What a note becomes in each layout, side by side: the codes that differ,
// the groups 3.10 repeats or leaves out, and the refusals both share.

#include "../layout_4_00/layout_teste.hpp"

#include <support/corpus_notas.hpp>
#include <support/notas_fiscais.hpp>
#include <support/partes_de_notas.hpp>
#include <support/report.hpp>
#include <support/trechos.hpp>
#include <support/xml_text.hpp>
#include <velk/erp/tarn/nfe/layout_3_10/diferencas_layout.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using namespace velk::erp::fiscal;
using velk::core::result::stack;
using velk::erp::tarn::nfe::versao;
using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
using velk::test::alteracao;

// The document's text, or the failure on one line after a "!".
std::string gerar(nota_fiscal const& nota, versao layout)
{
    stack s;
    documento_fiscal const documento = documento_fiscal::from_nota_fiscal(nota, layout, s);
    return s.has_failed() ? "!" + velk::test::report_line(s) : velk::test::saved_text(documento.get_xml());
}

nota_fiscal do_corpus(std::string const& nome)
{
    for (auto const& nota : velk::test::corpus_notas()) {
        if (nota.nome == nome) {
            return nota.criar();
        }
    }
    ADD_FAILURE() << "no note " << nome;
    return {};
}

alteracao pago_com(std::vector<detalhes_pagamento> pagamentos)
{
    return [pagamentos](nota_fiscal& nota) { nota.set_informacoes_pagamento(velk::test::pago_com(pagamentos)); };
}

alteracao transporte(modalidade_frete modalidade, char const* placa)
{
    return [modalidade, placa](nota_fiscal& nota) {
        nota.set_informacoes_transporte(nota.get_informacoes_transporte().set_modalidade_frete(modalidade).set_veiculo(
            veiculo_transporte().set_placa(placa).set_uf("SP")));
    };
}

struct caso {
    char const* nome;
    std::function<nota_fiscal()> base;
    alteracao alterar;
    std::vector<std::string> em_3_10;
    std::vector<std::string> em_4_00;
};

TEST(layout_3_10, what_each_layout_makes_of_the_same_note)
{
    auto const padaria = velk::test::nota_nfce_simples;
    auto const completa = velk::test::nota_nfe_completa;
    auto const servico = [] { return do_corpus("nfe_sp_servico"); };
    auto const industria = [] { return do_corpus("nfe_rs_industria"); };
    auto const nada = [](nota_fiscal&) {};
    std::vector<caso> const casos = {
        {"the frame", padaria, nada,
         {"+<infNFe Id=\"NFe", "+versao=\"3.10\"", "+</natOp><indPag>0</indPag><mod>",
          "-<indIntermed>", "-<infRespTec>", "-<vFCP>", "-<vIPIDevol>", "-<cEAN>SEM GTIN</cEAN>"},
         {"+versao=\"4.00\"", "-<indPag>0</indPag><mod>"}},
        {"the note's form of payment", padaria, [](nota_fiscal& n) { n.set_indice_pagamento(indice_pagamento::outros); },
         {"+<indPag>2</indPag>"}, {"-<indPag>2</indPag>"}},
        {"a form of payment outside the table", padaria,
         [](nota_fiscal& n) { n.set_indice_pagamento(static_cast<indice_pagamento>(3)); },
         {"!tarn-nfe-nota-fiscal 39 value=3"}, {"+<tpNF>"}},
        {"in person outside the establishment", padaria,
         [](nota_fiscal& n) { n.set_indicador_presenca(indicador_presenca::presencial_fora_estabelecimento); },
         {"+<indPres>1</indPres>"}, {"+<indPres>5</indPres>"}},
        {"a type of operation outside the table", padaria,
         [](nota_fiscal& n) { n.set_tipo_operacao(static_cast<tipo_operacao>(2)); },
         {"!tarn-nfe-nota-fiscal 22 value=2"}, {"!tarn-nfe-nota-fiscal 22 value=2"}},
        {"a key of the wrong length", padaria, [](nota_fiscal& n) { n.set_chave_44_digitos("123"); },
         {"!tarn-nfe-nota-fiscal 58 value=123"}, {"!tarn-nfe-nota-fiscal 58 value=123"}},
        {"one pag per payment, no change", padaria,
         pago_com({velk::test::pagamento(meio_pagamento::dinheiro, "10.00"),
                   velk::test::pagamento(static_cast<meio_pagamento>(12), "5.00"),
                   velk::test::pagamento(static_cast<meio_pagamento>(9), "3.90")}),
         {"+<pag><tPag>01</tPag><vPag>10.00</vPag></pag><pag><tPag>99</tPag><vPag>5.00</vPag></pag><pag><tPag>99</tPag>"
          "<vPag>3.90</vPag></pag>",
          "-<detPag>", "-<vTroco>"},
         {"+<tPag>01</tPag>", "+<tPag>99</tPag>", "+<tPag>14</tPag>"}},
        {"a card brand 3.10 does not know", padaria,
         pago_com({velk::test::cartao(meio_pagamento::cartao_credito, "18.90", tipo_integracao_pagamento::integrado,
                                      static_cast<bandeira_cartao>(5), "123456", "01425787000104")}),
         {"+<pag><tPag>03</tPag><vPag>18.90</vPag><card><tpIntegra>1</tpIntegra><CNPJ>01425787000104</CNPJ>"
          "<tBand>99</tBand>"},
         {"+<tBand>06</tBand>"}},
        {"no payment at all", padaria, pago_com({}), {"-<pag>"}, {"+<tPag>90</tPag>"}},
        {"services keep their ISSQN, which the schema of 3.10 requires without ICMS", servico, nada,
         {"+<ISSQN><vBC>", "+<ISSQNtot>"}, {"+<ISSQN><vBC>"}},
        {"the class of IPI for cigarettes and drinks", industria,
         [](nota_fiscal& n) {
             velk::test::no_primeiro_produto(n, [](produto& p) {
                 p.set_tributacao_ipi(p.get_tributacao_ipi()->set_classe_enquadramento_ipi_cigarros_bebidas("A1"));
             });
         },
         {"+<IPI><clEnq>A1</clEnq>"}, {"-<clEnq>"}},
        {"the share of natural gas of a GLP mix", completa,
         [](nota_fiscal& n) {
             velk::test::no_produto(n, 2, [](produto& p) {
                 p.set_combustiveis(p.get_combustiveis()->set_informacoes_glp(
                     informacoes_combustivel_glp()
                         .set_percentual_derivado_do_petroleo(velk::test::valor("60.0000"))
                         .set_percentual_gas_natural_nacional(velk::test::valor("30.0000"))
                         .set_percentual_gas_natural_importado(velk::test::valor("10.0000"))
                         .set_valor_partida(velk::test::valor("5.00"))));
             });
         },
         {"+<cProdANP>820101034</cProdANP><pMixGN>40.0000</pMixGN><UFCons>", "-<pGLP>", "-<vPart>"},
         {"+<descANP>OLEO DIESEL B S10 - COMUM</descANP><pGLP>60.0000</pGLP>", "-<pMixGN>"}},
        {"medicines are not read", completa, nada, {"-<med>"}, {"+<med><cProdANVISA>"}},
        {"own transport of the sender, a plate of the old form", completa,
         transporte(modalidade_frete::proprio_remetente, "ABC1234"),
         {"+<modFrete>0</modFrete>", "+<placa>ABC1234</placa>"}, {"+<modFrete>3</modFrete>"}},
        {"own transport of the recipient, a Mercosul plate", completa,
         transporte(modalidade_frete::proprio_destinatario, "BRA2E19"),
         {"+<modFrete>1</modFrete>", "-<veicTransp>"}, {"+<modFrete>4</modFrete>", "+<placa>BRA2E19</placa>"}},
        {"tax passed on with CST 60", [] { return do_corpus("nfe_rj_repasse"); }, nada,
         {"!tarn-nfe-nota-fiscal 32 value=60"}, {"+<ICMSST><orig>"}},
    };
    for (caso const& c : casos) {
        SCOPED_TRACE(c.nome);
        nota_fiscal nota = c.base();
        c.alterar(nota);
        velk::test::conferir_trechos(gerar(nota, versao::versao_3_10), c.em_3_10, "3.10");
        velk::test::conferir_trechos(gerar(nota, versao::versao_4_00), c.em_4_00, "4.00");
    }
}

// The table of tags of one layout only holds: no document of the corpus has a
// tag of the other layout in its group.
TEST(layout_3_10, no_document_holds_a_tag_of_the_other_layout)
{
    namespace layout = velk::erp::tarn::nfe::layout_3_10;
    for (auto const& nota : velk::test::corpus_notas()) {
        for (auto const& [layout_gerado, tabela] :
             {std::pair{versao::versao_3_10, layout::tags_so_no_4_00()},
              std::pair{versao::versao_4_00, layout::tags_so_no_3_10()}}) {
            std::string const texto = gerar(nota.criar(), layout_gerado);
            if (texto[0] == '!') {
                continue;  // what 3.10 refuses is tested above
            }
            velk::xml::element const raiz = velk::test::parse_element(texto);
            for (auto const& linha : tabela) {
                velk::xml::element const* grupo = velk::test::first_element_named(raiz, linha.grupo);
                for (char const* tag : linha.tags) {
                    EXPECT_TRUE(grupo == nullptr || grupo->find_child(tag) == nullptr)
                        << nota.nome << ": " << linha.grupo << "/" << tag;
                }
            }
        }
    }
}

}  // namespace
