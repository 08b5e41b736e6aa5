// What the JSON road makes of the same message in each layout, side by side:
// the codes 3.10 reads its own way, the groups it repeats or leaves out, and
// the refusals both layouts share.

#include "notas_json_teste.hpp"

#include <support/report.hpp>
#include <support/trechos.hpp>
#include <support/xml_text.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>
#include <vector>

namespace {

namespace serialization = velk::internal::nfe::serialization;
using velk::test::NotaFiscal;
using Pagamento = serialization::DetalhesPagamento;
using Bandeira = serialization::TransacaoTEF;

// The document's text, or the failure on one line after a "!".
std::string gerar(NotaFiscal const& nota,
                  velk::xml::document (*gerador)(NotaFiscal const&, velk::core::result::stack&))
{
    velk::core::result::stack s;
    velk::xml::document const documento = gerador(nota, s);
    return s.has_failed() ? "!" + velk::test::report_line(s) : velk::test::saved_text(documento);
}

void decimal(serialization::Decimal* valor, long long numero, unsigned casas)
{
    valor->set_numero(numero);
    valor->set_casas_decimais(casas);
}

// The note's payments, each by its means and value in cents, the card's brand
// after a colon when it has one.
std::function<void(NotaFiscal&)> pago_com(std::vector<std::pair<int, int>> meios, int bandeira = -1)
{
    return [meios, bandeira](NotaFiscal& nota) {
        auto& pagamento = *nota.mutable_informacoes_pagamento();
        pagamento.Clear();
        for (auto const& [meio, centavos] : meios) {
            Pagamento& detalhes = *pagamento.add_detalhes_pagamento();
            detalhes.set_meio_pagamento(static_cast<Pagamento::MeioDePagamento>(meio));
            decimal(detalhes.mutable_valor_pagamento(), centavos, 2);
            if (bandeira >= 0 || bandeira == INT_MIN) {
                detalhes.mutable_informacoes_cartao()->set_tipo_integracao(Bandeira::Integrado);
                detalhes.mutable_informacoes_cartao()->set_bandeira(static_cast<Bandeira::Bandeira>(bandeira));
            }
        }
    };
}

std::function<void(NotaFiscal&)> cartao(int bandeira)
{
    return pago_com({{Pagamento::CartaoCredito, 7000}}, bandeira);
}

std::function<void(NotaFiscal&)> frete(serialization::InformacoesTransporte::ModalidadeFrete modalidade)
{
    return [modalidade](NotaFiscal& nota) { nota.mutable_informacoes_transporte()->set_modalidade(modalidade); };
}

// A GLP mix in the fuel of the station's first item; the shares of natural
// gas in ten-thousandths, a negative one absent.
std::function<void(NotaFiscal&)> glp(long long nacional, long long importado)
{
    return [nacional, importado](NotaFiscal& nota) {
        auto& mistura = *nota.mutable_produtos(0)->mutable_grupo_detalhamento_combustivel()->mutable_informacoes_glp();
        decimal(mistura.mutable_percentual_derivado_do_petroleo(), 600000, 4);
        if (nacional >= 0) {
            decimal(mistura.mutable_percentual_gas_natural_nacional(), nacional, 4);
        }
        if (importado >= 0) {
            decimal(mistura.mutable_percentual_gas_natural_importado(), importado, 4);
        }
        decimal(mistura.mutable_valor_partida(), 500, 2);
    };
}

struct caso {
    char const* nome;
    char const* base;  // a note of the JSON corpus
    std::function<void(NotaFiscal&)> alterar;
    std::vector<std::string> em_3_10;
    std::vector<std::string> em_4_00;
};

void PrintTo(caso const& c, std::ostream* saida)
{
    *saida << c.nome;
}

auto const nada = [](NotaFiscal&) {};

std::vector<caso> const casos = {
    {"the frame", "nfce_rj_mercado", nada,
     {"+<infNFe Id=\"NFe33", "+versao=\"3.10\"", "+</natOp><indPag>0</indPag><mod>65</mod>",
      "+<verProc>2.02</verProc>", "-<indIntermed>", "-<infRespTec>", "-<vTroco>", "-<detPag>", "-<xPag>"},
     {"+versao=\"4.00\"", "-</natOp><indPag>", "+<indIntermed>0</indIntermed>", "+<infRespTec>", "+<vTroco>"}},
    {"the note's form of payment in time", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indice_pagamento(NotaFiscal::PagamentoAPrazo); }, {"+<indPag>1</indPag><mod>"},
     {"-</natOp><indPag>"}},
    {"the note's other form of payment", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indice_pagamento(NotaFiscal::Outros); }, {"+<indPag>2</indPag><mod>"},
     {"-</natOp><indPag>"}},
    {"a form of payment of no enumerator", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indice_pagamento(static_cast<NotaFiscal::IndicadorFormaPagamento>(7)); },
     {"+<indPag>0</indPag><mod>"}, {"-</natOp><indPag>"}},
    {"protobuf's sentinel as the form of payment", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indice_pagamento(static_cast<NotaFiscal::IndicadorFormaPagamento>(INT_MAX)); },
     {"!tarn-nfe-nota-fiscal 39 value=2147483647"}, {"+<indPres>1</indPres>"}},
    {"in person outside the establishment", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indicador_presenca(NotaFiscal::OperacaoPresencialForaDoEstabelecimento); },
     {"+<indPres>1</indPres>"}, {"+<indPres>5</indPres>"}},
    {"another sale not in person", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indicador_presenca(NotaFiscal::OperacaoNaoPresencial); }, {"+<indPres>9</indPres>"},
     {"+<indPres>9</indPres>"}},
    {"protobuf's sentinel as the presence", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.set_indicador_presenca(static_cast<NotaFiscal::IndicadorPresenca>(INT_MIN)); },
     {"!tarn-nfe-nota-fiscal 18 value=2147483648"}, {"!tarn-nfe-nota-fiscal 18 value=2147483648"}},
    {"the means of payment 3.10 knows, one pag each", "nfce_rj_mercado",
     pago_com({{Pagamento::Dinheiro, 100}, {Pagamento::ValeCombustivel, 200}, {Pagamento::Outros, 300}}),
     {"+</total><transp><modFrete>9</modFrete></transp><pag><tPag>01</tPag><vPag>1.00</vPag></pag>"
      "<pag><tPag>13</tPag><vPag>2.00</vPag></pag><pag><tPag>99</tPag><vPag>3.00</vPag></pag><infAdic>"},
     {"+<detPag><tPag>01</tPag>", "+<tPag>13</tPag>", "+<tPag>99</tPag>"}},
    {"the later means of payment are other", "nfce_rj_mercado",
     pago_com({{Pagamento::DuplicataMercantil, 100},
               {Pagamento::BoletoBancario, 100},
               {Pagamento::SemPagamento, 100},
               {Pagamento::DepositoBancario, 100},
               {Pagamento::PagamentoInstantaneo, 100},
               {Pagamento::TransferenciaBancaria, 100},
               {Pagamento::ProgramaDeFidelidade, 100}}),
     {"+<pag><tPag>99</tPag><vPag>1.00</vPag></pag><pag><tPag>99</tPag><vPag>1.00</vPag></pag><pag><tPag>99</tPag>"
      "<vPag>1.00</vPag></pag><pag><tPag>99</tPag><vPag>1.00</vPag></pag><pag><tPag>99</tPag><vPag>1.00</vPag></pag>"
      "<pag><tPag>99</tPag><vPag>1.00</vPag></pag><pag><tPag>99</tPag><vPag>1.00</vPag></pag><infAdic>"},
     {"+<tPag>14</tPag>", "+<tPag>15</tPag>", "+<tPag>90</tPag>", "+<tPag>16</tPag>", "+<tPag>17</tPag>",
      "+<tPag>18</tPag>", "+<tPag>19</tPag>"}},
    {"a means of payment of no enumerator", "nfce_rj_mercado", pago_com({{17, 100}}),
     {"!tarn-nfe-nota-fiscal 40 value=17"}, {"!tarn-nfe-nota-fiscal 40 value=17"}},
    {"no payment at all", "nfce_rj_mercado", pago_com({}), {"-<pag>"},
     {"+<pag><detPag><tPag>90</tPag><vPag>0.00</vPag></detPag></pag>"}},
    {"the fourth card brand", "nfce_rj_mercado", cartao(Bandeira::SOROCRED),
     {"+<pag><tPag>03</tPag><vPag>70.00</vPag><card><tpIntegra>1</tpIntegra><tBand>04</tBand></card></pag>"},
     {"+<tBand>04</tBand>"}},
    {"the brand other", "nfce_rj_mercado", cartao(Bandeira::OUTROS), {"+<tBand>99</tBand>"},
     {"+<tBand>99</tBand>"}},
    {"a brand among the first ten", "nfce_rj_mercado", cartao(Bandeira::CABAL), {"+<tBand>99</tBand>"},
     {"+<tBand>09</tBand>"}},
    {"a brand after the first ten, which 3.10's schema knows as other", "nfce_rj_mercado", cartao(Bandeira::TICKET),
     {"+<tBand>99</tBand>"}, {"+<tBand>27</tBand>"}},
    {"a brand of no enumerator", "nfce_rj_mercado", cartao(28), {"!tarn-nfe-nota-fiscal 42 value=28"},
     {"!tarn-nfe-nota-fiscal 42 value=28"}},
    {"the share of natural gas of a GLP mix", "nfce_pr_posto", glp(300000, 100000),
     {"+<cProdANP>320102001</cProdANP><pMixGN>40.0000</pMixGN><UFCons>PR</UFCons>", "-<descANP>", "-<pGLP>",
      "-<pGNn>", "-<vPart>"},
     {"+<descANP>GASOLINA C COMUM</descANP><pGLP>60.0000</pGLP><pGNn>30.0000</pGNn><pGNi>10.0000</pGNi>"
      "<vPart>5.00</vPart>",
      "-<pMixGN>"}},
    {"a GLP mix of imported gas only", "nfce_pr_posto", glp(-1, 125000), {"+<pMixGN>12.5000</pMixGN>"},
     {"-<pGNn>", "+<pGNi>12.5000</pGNi>"}},
    {"fuel without a GLP mix", "nfce_pr_posto", nada, {"-<pMixGN>", "+<comb><cProdANP>320102001</cProdANP><UFCons>"},
     {"-<pMixGN>"}},
    {"own transport of the sender", "nfce_rj_mercado",
     frete(serialization::InformacoesTransporte::TransporteProprioRemetente), {"+<modFrete>0</modFrete>"},
     {"+<modFrete>3</modFrete>"}},
    {"own transport of the recipient", "nfce_rj_mercado",
     frete(serialization::InformacoesTransporte::TransporteProprioDestinatario), {"+<modFrete>1</modFrete>"},
     {"+<modFrete>4</modFrete>"}},
    {"places, marketplace and technical manager are not read", "nfe_sp_marketplace", nada,
     {"-<retirada>", "-<entrega>", "-<infIntermed>", "-<indIntermed>", "-<infRespTec>"},
     {"+<retirada>", "+<entrega>", "+<infIntermed>", "+<indIntermed>1</indIntermed>", "+<infRespTec>"}},
    {"a marketplace of no enumerator is not read either", "nfe_sp_marketplace",
     [](NotaFiscal& n) { n.set_indicador_intermediador(static_cast<NotaFiscal::IndicadorIntermediador>(INT_MAX)); },
     {"-<indIntermed>"}, {"!tarn-nfe-nota-fiscal 78 value=2147483647"}},
    {"tax passed on with CST 60", "nfe_rj_repasse", nada, {"!tarn-nfe-nota-fiscal 32 value=60"},
     {"+<ICMSST><orig>"}},
    {"an emitter's CNPJ with punctuation", "nfce_rj_mercado",
     [](NotaFiscal& n) { n.mutable_emitente()->mutable_cnpj()->set_value("12.345.678/0001-95"); },
     {"!core-converter 2 / tarn-nfe-nota-fiscal 59 value=12.345.678/0001-95"},
     {"!core-converter 2 / tarn-nfe-nota-fiscal 59 value=12.345.678/0001-95"}},
};

class layout_3_10_json : public testing::TestWithParam<caso> {};

TEST_P(layout_3_10_json, what_each_layout_makes_of_the_same_message)
{
    NotaFiscal nota = velk::test::nota_json(GetParam().base);
    GetParam().alterar(nota);
    velk::test::conferir_trechos(gerar(nota, velk::erp::tarn::nfe::protobuf::generate_document_3_10),
                                 GetParam().em_3_10, "3.10");
    velk::test::conferir_trechos(gerar(nota, velk::erp::tarn::nfe::protobuf::generate_document_4_00),
                                 GetParam().em_4_00, "4.00");
}

INSTANTIATE_TEST_SUITE_P(casos, layout_3_10_json, testing::ValuesIn(casos));

}  // namespace
