// The services besides the status query: the checks each makes before
// anything is sent, and the road of each through an authority whose answer
// the test chooses (real answers kept from the states, or answers made to
// fail), over mutual TLS on the loopback.
#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/servico/inutilizacao.hpp>

#include "../documentos_teste.hpp"
#include "servicos_teste.hpp"

#include <support/canned_authority.hpp>
#include <support/files.hpp>
#include <support/report.hpp>
#include <support/schema.hpp>
#include <support/sefaz_simulator.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
using velk::core::result::stack;
using velk::erp::estado;
using velk::erp::tarn::ambiente;
using velk::erp::tarn::chave_acesso;
using velk::erp::tarn::modelo;
using velk::test::ready;
using velk::test::report_line;
using velk::test::server;
using velk::test::soap_envelope;

constexpr char nfce_key[] = "35240527164983000158650010000482131619382745";

requisicao::lote_autorizacao signed_batch()
{
    requisicao::lote_autorizacao lote;
    lote.set_versao(nfe::versao::versao_4_00);
    lote.set_id(1);
    stack s;
    lote.append_documento_fiscal(velk::test::documento_assinado(velk::test::nota_nfce_simples()), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return lote;
}

requisicao::inutilizacao signed_disablement()
{
    stack s;
    auto pedido = requisicao::inutilizacao::from_data(nfe::versao::versao_4_00, ambiente::homologacao,
                                                      "Numeracao pulada por falha do sistema", estado::sp, modelo::nfce,
                                                      24, 1, 48200, 48210, 27164983000158ULL, s);
    pedido.assinar(velk::test::taxpayer_pkcs12(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return pedido;
}

chave_acesso nfce_chave()
{
    chave_acesso value;
    velk::core::value_converter<chave_acesso>::make_value(value, nfce_key, 44);
    return value;
}

// Each service called on the server, giving the status and reason read, or
// the report.
using call = std::function<std::string(nfe::web_server_info const&)>;

template <class Service, class Make>
call calling(Make make)
{
    return [make](nfe::web_server_info const& info) {
        stack s;
        auto const r = ready<Service>().executar(make(), info, s);
        return s.has_failed() ? report_line(s) : std::to_string(r.get_codigo_status()) + " " + r.get_motivo();
    };
}

call const call_autorizacao = calling<nfe::servico::autorizacao>(signed_batch);
call const call_consulta = calling<nfe::servico::consulta>([] {
    return requisicao::consulta::from_data(nfce_chave(), nfe::versao::versao_4_00, ambiente::homologacao);
});
call const call_consulta_recibo = calling<nfe::servico::consulta_recibo>([] {
    return requisicao::consulta_recibo::from_data(ambiente::homologacao, nfe::versao::versao_4_00, 351000000012345ULL,
                                                  estado::sp, modelo::nfe);
});
call const call_inutilizacao = calling<nfe::servico::inutilizacao>(signed_disablement);
call const call_consulta_gtin =
    calling<nfe::servico::consulta_gtin>([] { return requisicao::consulta_gtin::from_data("7894567002217"); });

// A real answer as the authorities send it: no blanks between the tags.
std::string compact_sample(std::string const& file)
{
    std::string const text = velk::test::read_text(velk::test::sample(file));
    std::string compact;
    for (std::size_t at = 0; at < text.size(); ++at) {
        compact += text[at];
        if (text[at] == '>') {
            std::size_t const next = text.find_first_not_of(" \t\r\n", at + 1);
            if (next != std::string::npos && text[next] == '<') {
                at = next - 1;
            }
        }
    }
    return compact;
}

std::string const consulta_answer =
    "<retConsSitNFe versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
    "<verAplic>SP_NFE_PL009_V4</verAplic><cStat>217</cStat><xMotivo>Rejeicao: NF-e nao consta na base de dados da "
    "SEFAZ</xMotivo><cUF>35</cUF><dhRecbto>2024-05-15T09:00:00-03:00</dhRecbto><chNFe>" +
    std::string(nfce_key) + "</chNFe></retConsSitNFe>";
std::string const gtin_answer =
    "<nfeResultMsg><retConsGTIN versao=\"1.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><verAplic>SVRS</verAplic>"
    "<cStat>9490</cStat><xMotivo>Consulta realizada com sucesso</xMotivo><dhResp>2024-05-15T09:00:00-03:00</dhResp>"
    "</retConsGTIN></nfeResultMsg>";
// What no service reads: the answer of the status service.
std::string const status_answer =
    "<retConsStatServ versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
    "<verAplic>SP</verAplic><cStat>107</cStat><xMotivo>Servico em Operacao</xMotivo><cUF>35</cUF>"
    "<dhRecbto>2024-05-15T09:00:00-03:00</dhRecbto></retConsStatServ>";

// The report of an answer under a tag that the service does not take.
std::string refused(std::string const& tag, std::string const& valid)
{
    return "tarn-processo-recuperar-resposta-receita 2 unexpected_element_name=" + tag + " valid_element_names=[" +
           valid + "] / tarn-nfe-servico-geral 11";
}

struct road {
    char const* name;
    call const& service;
    std::string answer;
    std::string expected;
};

TEST(servicos, each_service_reads_its_answer_under_its_own_result_tags)
{
    std::string const enviado = compact_sample("soap/exemplo_retorno_sucesso_envia_lote.xml");
    std::string const recibo = compact_sample("soap/2017reconsrec.xml");
    std::string const inutilizado = compact_sample("soap/response_inut_cnpj.xml");
    auto const retagged = [](std::string text, std::string const& from, std::string const& to) {
        for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
            text.replace(at, from.size(), to);
        }
        return text;
    };
    std::string const lote_tags = "nfeAutorizacaoLoteResult, nfeResultMsg";
    std::string const recibo_tags = "nfeRetAutorizacaoLoteResult, nfeRetAutorizacaoResult, nfeResultMsg";
    std::string const unreadable = "tarn-nfe-servico-geral 2";
    road const roads[] = {
        {"autorizacao, real answer of RS", call_autorizacao, enviado, "104 Lote processado"},
        {"autorizacao refuses the receipt query's tag", call_autorizacao,
         retagged(enviado, "nfeResultMsg", "nfeRetAutorizacaoResult"),
         refused("nfeRetAutorizacaoResult", lote_tags)},
        {"autorizacao, answer of another service", call_autorizacao, soap_envelope("nfeResultMsg", status_answer),
         "erp-tarn-sefaz-data 1 element-name=retEnviNFe / " + unreadable},
        {"consulta_recibo, real answer of SP", call_consulta_recibo, recibo, "104 Lote processado"},
        {"consulta_recibo, tag of the older receipt service", call_consulta_recibo,
         retagged(recibo, "nfeRetAutorizacaoLoteResult", "nfeRetAutorizacaoResult"), "104 Lote processado"},
        {"consulta_recibo refuses the batch's tag", call_consulta_recibo,
         retagged(recibo, "nfeRetAutorizacaoLoteResult", "nfeAutorizacaoLoteResult"),
         refused("nfeAutorizacaoLoteResult", recibo_tags)},
        {"inutilizacao, real answer of GO", call_inutilizacao, inutilizado, "102 Inutilização de número homologado"},
        // SP once answered with the message straight under Body.
        {"inutilizacao, answer without result tag", call_inutilizacao, compact_sample("soap/res_inut.xml"),
         refused("retInutNFe", "nfeInutilizacaoNFResult, nfeInutilizacaoNF2Result, nfeResultMsg")},
        {"consulta", call_consulta, soap_envelope("nfeConsultaNF2Result", consulta_answer),
         "217 Rejeicao: NF-e nao consta na base de dados da SEFAZ"},
        {"consulta refuses another tag", call_consulta, soap_envelope("nfeStatusServicoNFResult", consulta_answer),
         refused("nfeStatusServicoNFResult", "nfeConsultaNFResult, nfeConsultaNF2Result, nfeResultMsg")},
        {"consulta_gtin", call_consulta_gtin, soap_envelope("ccgConsGTINResponse", gtin_answer),
         "9490 Consulta realizada com sucesso"},
        {"consulta_gtin refuses the common tag", call_consulta_gtin, soap_envelope("nfeResultMsg", gtin_answer),
         refused("nfeResultMsg", "ccgConsGTINResponse")},
        {"consulta_gtin, answer of another service", call_consulta_gtin,
         soap_envelope("ccgConsGTINResponse", status_answer),
         "erp-tarn-sefaz-data 1 element-name=nfeResultMsg / " + unreadable},
    };
    for (road const& each : roads) {
        SCOPED_TRACE(each.name);
        velk::test::canned_authority const authority(each.answer);
        EXPECT_EQ(each.service(server(authority.url())), each.expected);
        EXPECT_EQ(authority.received().size(), 1u);
    }
}

// What reached the server: the envelope's header, and the message inside it
// checked against its schema.
struct sent {
    char const* name;
    call const& service;
    std::string answer;
    char const* header_state;  // cUF of nfeCabecMsg; null for no header
    char const* message;
    char const* schema;
};

TEST(servicos, each_service_sends_its_message_in_its_envelope)
{
    sent const cases[] = {
        {"autorizacao", call_autorizacao, compact_sample("soap/exemplo_retorno_sucesso_envia_lote.xml"), "SP",
         "enviNFe", "enviNFe_v4.00.xsd"},
        {"consulta", call_consulta, soap_envelope("nfeResultMsg", consulta_answer), "SP", "consSitNFe",
         "consSitNFe_v4.00.xsd"},
        {"consulta_recibo", call_consulta_recibo, compact_sample("soap/2017reconsrec.xml"), "SP", "consReciNFe",
         "consReciNFe_v4.00.xsd"},
        {"inutilizacao", call_inutilizacao, compact_sample("soap/response_inut_cnpj.xml"), "SP", "inutNFe",
         "inutNFe_v4.00.xsd"},
        {"consulta_gtin", call_consulta_gtin, soap_envelope("ccgConsGTINResponse", gtin_answer), nullptr, "consGTIN",
         "consGTIN_v1.00.xsd"},
    };
    for (sent const& each : cases) {
        SCOPED_TRACE(each.name);
        velk::test::canned_authority const authority(each.answer);
        // The catalogue's envelope has no header, even when one is asked for.
        each.service(server(authority.url(), "com_namespace"));
        ASSERT_EQ(authority.received().size(), 1u);
        velk::xml::element const envelope_sent = velk::test::parse_element(authority.received().front());
        velk::xml::element const* header = envelope_sent.find_child("Header");
        velk::xml::element const* body = envelope_sent.find_child("Body");
        ASSERT_NE(body, nullptr);
        if (each.header_state == nullptr) {
            EXPECT_EQ(header, nullptr);
            EXPECT_EQ(velk::test::child_element_names(*body), (std::vector<std::string>{"ccgConsGTIN"}));
            EXPECT_EQ(velk::test::child_element_names(*body->find_child("ccgConsGTIN")),
                      (std::vector<std::string>{"nfeDadosMsg"}));
        } else {
            ASSERT_NE(header, nullptr);
            velk::xml::element const* cabecalho = header->find_child("nfeCabecMsg");
            ASSERT_NE(cabecalho, nullptr);
            EXPECT_EQ(cabecalho->find_child("cUF")->get_contents(), each.header_state);
            EXPECT_EQ(cabecalho->find_child("versaoDados")->get_contents(), "4.00");
            EXPECT_EQ(velk::test::child_element_names(*body), (std::vector<std::string>{"nfeDadosMsg"}));
        }
        velk::xml::element const* message = velk::test::first_element_named(*body, each.message);
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / each.schema, *message),
                  std::vector<std::string>());
    }
}

// The report of a call that ends before anything is sent.
template <class Service, class Request>
std::string stopped(Request const& request)
{
    stack s;
    auto const r = ready<Service>().executar(request, nfe::web_server_info(), s);
    EXPECT_EQ(r.get_codigo_status(), 0u);
    return report_line(s);
}

TEST(servicos, the_checks_before_anything_is_sent)
{
    auto const bad_version = static_cast<nfe::versao>(9);
    auto const bad_environment = static_cast<ambiente>(6);
    std::string const converter = "core-converter 2 / ";
    std::string const servico = "tarn-nfe-servico-geral ";
    requisicao::lote_autorizacao lote = signed_batch();
    lote.set_versao(bad_version);
    EXPECT_EQ(stopped<nfe::servico::autorizacao>(lote), converter + servico + "7 value=9");
    EXPECT_EQ(stopped<nfe::servico::autorizacao>(requisicao::lote_autorizacao()),
              "erp-tarn-sefaz-data 7 / " + servico + "9");

    EXPECT_EQ(stopped<nfe::servico::consulta>(
                  requisicao::consulta::from_data(nfce_chave(), bad_version, ambiente::homologacao)),
              converter + servico + "7 value=9");
    EXPECT_EQ(stopped<nfe::servico::consulta>(
                  requisicao::consulta::from_data(nfce_chave(), nfe::versao::versao_4_00, bad_environment)),
              converter + "erp-tarn-sefaz-data 9 request-name=consulta field-name=ambiente / " + servico + "9");

    // State, then environment, then version.
    auto const recibo = [](ambiente tipo_ambiente, nfe::versao versao_layout, estado uf) {
        return requisicao::consulta_recibo::from_data(tipo_ambiente, versao_layout, 1, uf, modelo::nfe);
    };
    EXPECT_EQ(stopped<nfe::servico::consulta_recibo>(recibo(bad_environment, bad_version, static_cast<estado>(77))),
              converter + servico + "12 value=77");
    EXPECT_EQ(stopped<nfe::servico::consulta_recibo>(recibo(bad_environment, bad_version, estado::sp)),
              converter + servico + "8 value=6");
    EXPECT_EQ(stopped<nfe::servico::consulta_recibo>(recibo(ambiente::homologacao, bad_version, estado::sp)),
              converter + servico + "7 value=9");

    EXPECT_EQ(stopped<nfe::servico::inutilizacao>(requisicao::inutilizacao()), servico + "9")
        << "a request never made has nothing to send";
    EXPECT_EQ(stopped<nfe::servico::consulta_gtin>(requisicao::consulta_gtin::from_data("1")),
              servico + "5 Endpoint= Action=")
        << "the catalogue checks nothing first";
}

}  // namespace
