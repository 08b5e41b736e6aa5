#include <velk/core/converter_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>
#include <velk/xml/document.hpp>

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
namespace resposta = nfe::sefaz_data::resposta;
using velk::core::byte_array;
using velk::core::result::stack;
using velk::test::parse_element;
using velk::test::saved_text;
using arguments = std::vector<std::pair<std::string, std::string>>;

TEST(status_autorizador_requisicao, default_and_set_requests_as_the_schemas_want_them)
{
    stack result;
    requisicao::status_autorizador const default_request;
    EXPECT_EQ(saved_text(default_request.get_xml(result)),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<consStatServ xmlns=\"http://www.portalfiscal.inf.br/nfe\" "
              "versao=\"3.10\"><tpAmb>2</tpAmb><cUF>12</cUF><xServ>STATUS</xServ></consStatServ>");
    ASSERT_FALSE(result.has_failed()) << result.to_string();

    struct row {
        nfe::versao versao;
        char const* schema;
    } const rows[] = {{nfe::versao::versao_3_10, "consStatServ_v3.10.xsd"},
                      {nfe::versao::versao_4_00, "consStatServ_v4.00.xsd"}};
    for (row const& each : rows) {
        requisicao::status_autorizador request;
        request.set_versao(each.versao);
        request.set_ambiente(velk::erp::tarn::ambiente::producao);
        request.set_estado(velk::erp::estado::to);
        velk::xml::element const message = request.get_xml(result);
        ASSERT_FALSE(result.has_failed()) << result.to_string();
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / each.schema, message),
                  std::vector<std::string>())
            << each.schema;
        EXPECT_NE(saved_text(message).find("<tpAmb>1</tpAmb><cUF>17</cUF>"), std::string::npos);
    }
}

TEST(status_autorizador_requisicao, version_without_text_names_the_field)
{
    requisicao::status_autorizador request;
    request.set_versao(static_cast<nfe::versao>(3));
    stack result;
    request.get_xml(result);
    ASSERT_EQ(result.size(), 2u);
    EXPECT_EQ(result.begin()->get_category(), velk::core::converter_result_category::instance());
    EXPECT_EQ(result.get_category(), nfe::sefaz_data::result_category::instance());
    EXPECT_EQ(result.get_value(), 9);
    EXPECT_EQ(result.top().get_arguments(), (arguments{{"request-name", "status_autorizador"}, {"field-name", "versao"}}));
}

TEST(status_autorizador_resposta, optional_values_and_what_failures_name)
{
    std::string const head = "<retConsStatServ versao=\"4.00\"><tpAmb>2</tpAmb><verAplic>x</verAplic>";
    struct row {
        char const* case_name;
        std::string text;
        int code;  // 0: read without failure
        arguments expected;
    } const rows[] = {
        {"all values", head + "<cStat>108</cStat><xMotivo>Paralisado</xMotivo><dhRecbto>2024-01-02T03:04:05-03:00"
                              "</dhRecbto><tMed>7</tMed><dhRetorno>2024-01-02T05:00:00-03:00</dhRetorno>"
                              "<xObs>Manutencao</xObs></retConsStatServ>",
         0, {}},
        {"empty cStat reads as 0", head + "<cStat/><xMotivo/><dhRecbto>2024-01-02T03:04:05-03:00</dhRecbto>"
                                          "</retConsStatServ>",
         0, {}},
        {"cStat missing", head + "<xMotivo/></retConsStatServ>", 1, {{"element-name", "retConsStatServ/cStat"}}},
        {"dhRecbto missing", head + "<cStat>107</cStat><xMotivo/></retConsStatServ>", 1,
         {{"element-name", "retConsStatServ/dhRecbto"}}},
        {"bad dhRetorno is named after dhRecbto",
         head + "<cStat>107</cStat><xMotivo/><dhRecbto>2024-01-02T03:04:05-03:00</dhRecbto>"
                "<dhRetorno>amanha</dhRetorno></retConsStatServ>",
         2, {{"element-name", "retConsStatServ/dhRecbto"}, {"element-value", "amanha"}}},
        {"tMed of seventeen digits", head + "<cStat>107</cStat><xMotivo/><dhRecbto>2024-01-02T03:04:05-03:00"
                                            "</dhRecbto><tMed>12345678901234567</tMed></retConsStatServ>",
         2, {{"element-name", "retConsStatServ/tMed"}, {"element-value", "12345678901234567"}}},
        {"root of another name", "<retConsSitNFe><cStat>107</cStat></retConsSitNFe>", 1,
         {{"element-name", "retConsStatServ"}}},
    };
    for (row const& each : rows) {
        stack result;
        velk::xml::element const root = parse_element(each.text);
        auto const status = resposta::status_autorizador::from_xml(root, result);
        EXPECT_EQ(status.get_xml().get_name(), root.get_name()) << each.case_name << ": the tree is kept in any case";
        if (each.code == 0) {
            EXPECT_FALSE(result.has_failed()) << each.case_name << result.to_string();
            continue;
        }
        ASSERT_TRUE(result.has_failed()) << each.case_name;
        EXPECT_EQ(result.get_category(), nfe::sefaz_data::result_category::instance()) << each.case_name;
        EXPECT_EQ(result.get_value(), each.code) << each.case_name;
        EXPECT_EQ(result.top().get_arguments(), each.expected) << each.case_name;
        // A bad value sits over the converter's own report.
        EXPECT_EQ(result.size(), each.code == 2 ? 2u : 1u) << each.case_name;
    }

    stack result;
    auto const full = resposta::status_autorizador::from_xml(parse_element(rows[0].text), result);
    EXPECT_EQ(full.get_codigo_status(), 108);
    EXPECT_EQ(full.get_motivo(), "Paralisado");
    EXPECT_EQ(full.get_tempo_medio().value(), 7);
    EXPECT_EQ(full.get_data_retorno().value(),
              velk::core::datetime(velk::core::date(2, 1, 2024), velk::core::time(5, 0, 0, 0), -180));
    EXPECT_EQ(full.get_informacoes_adicionais(), "Manutencao");

    resposta::status_autorizador const none = resposta::status_autorizador::from_xml(velk::xml::document(), result);
    EXPECT_EQ(result.get_value(), 5);
    EXPECT_EQ(none.get_xml().get_name(), "");
}

// What executar refuses before it builds a message (the refusals before
// sending that need a server are tried against the simulator).
TEST(status_autorizador_servico, failures_before_the_message)
{
    nfe::web_server_info complete;
    complete.set_endpoint_url("https://127.0.0.1:9/ws");
    complete.set_action_url("http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4/nfeStatusServicoNF");

    requisicao::status_autorizador good;
    good.set_versao(nfe::versao::versao_4_00);
    requisicao::status_autorizador bad_versao = good;
    bad_versao.set_versao(static_cast<nfe::versao>(7));
    requisicao::status_autorizador bad_estado = good;
    bad_estado.set_estado(static_cast<velk::erp::estado>(99));

    nfe::servico::status_autorizador service;
    service.set_timeout(std::chrono::milliseconds(1000));

    struct row {
        char const* case_name;
        requisicao::status_autorizador const& request;
        nfe::web_server_info const& server;
        int code;
        std::size_t depth;
        arguments expected;
    } const rows[] = {
        {"version out of the enumeration", bad_versao, complete, 7, 2, {{"value", "7"}}},
        {"state out of the enumeration", bad_estado, complete, 12, 2, {{"value", "99"}}},
        {"default server description", good, nfe::web_server_info(), 5, 1, {{"Endpoint", ""}, {"Action", ""}}},
    };
    for (row const& each : rows) {
        stack result;
        auto const status = service.executar(each.request, each.server, result);
        ASSERT_EQ(result.size(), each.depth) << each.case_name << result.to_string();
        EXPECT_EQ(result.get_category(), nfe::servico_result_category::instance()) << each.case_name;
        EXPECT_EQ(result.get_value(), each.code) << each.case_name;
        EXPECT_EQ(result.top().get_arguments(), each.expected) << each.case_name;
        EXPECT_EQ(status.get_codigo_status(), 0) << each.case_name;
    }
}

TEST(status_autorizador_servico, copies_keep_their_own_settings)
{
    nfe::servico::status_autorizador first;
    first.set_timeout(std::chrono::milliseconds(1500));
    first.set_proxy(velk::network::proxy("proxy.local", 3128, "user", "secret"));
    nfe::servico::status_autorizador second = first;
    second.set_timeout(std::chrono::milliseconds(20));
    second.set_proxy({});
    EXPECT_EQ(first.get_timeout().count(), 1500);
    ASSERT_TRUE(first.get_proxy().has_value());
    EXPECT_EQ(first.get_proxy().value().get_port(), 3128u);
    EXPECT_EQ(second.get_timeout().count(), 20);
    EXPECT_FALSE(second.get_proxy().has_value());
}

}  // namespace
