// The status service end to end: the library's client against the SEFAZ
// simulator of this build, over mutual TLS on the loopback.
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>
#include <velk/erp/tarn/detail/soap/connection.hpp>
#include <velk/erp/tarn/detail/soap/envelope.hpp>
#include <velk/erp/tarn/detail/soap/extract_result_document.hpp>
#include <velk/erp/tarn/detail/soap/make_message.hpp>
#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/sefaz_simulator.hpp>
#include <support/xml_text.hpp>

#include "status_exchange_teste.hpp"

#include <gtest/gtest.h>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace soap = velk::erp::tarn::detail::soap;
using velk::core::byte_array;
using velk::core::result::category;
using velk::core::result::stack;
using velk::test::sefaz_simulator;
using texts = std::unordered_map<std::string, std::string>;
using namespace velk::test::status_exchange;

// Another authority, which neither side trusts, with a client certificate.
struct stranger_pki {
    velk::tools::pki::certificate_authority authority{"Autoridade Estranha"};
    std::filesystem::path ca_file = velk::test::scratch_dir("stranger-" + std::to_string(getpid())) / "ca.pem";
    byte_array client_pkcs12 = authority.issue_client("EMPRESA ESTRANHA:11111111000191").to_pkcs12("x");

    stranger_pki() { velk::test::write_text(ca_file, authority.certificate_pem()); }
    ~stranger_pki()
    {
        std::error_code ignored;
        std::filesystem::remove_all(ca_file.parent_path(), ignored);
    }

    static stranger_pki const& instance()
    {
        static stranger_pki const made;
        return made;
    }
};

// Files that make the transport fail on the client's side: a server
// certificate of the simulator's own CA for another host name than the one
// asked for, and lists of trusted authorities that cannot be read.
struct misleading_files {
    std::filesystem::path folder = velk::test::scratch_dir("misleading-" + std::to_string(getpid()));
    std::vector<std::string> misnamed_server;
    std::filesystem::path missing_ca = folder / "absent" / "ca.pem";
    std::filesystem::path ca_without_certificate = folder / "empty-ca.pem";

    misleading_files()
    {
        velk::tools::pki::issued_certificate const other_host =
            sefaz_simulator::pki().authority().issue_server({"outro-servidor.example"}, {});
        velk::test::write_text(folder / "server.pem", other_host.certificate_pem());
        velk::test::write_text(folder / "server-key.pem", other_host.private_key_pem());
        misnamed_server = {"--cert", (folder / "server.pem").string(), "--key", (folder / "server-key.pem").string()};
        velk::test::write_text(ca_without_certificate, "not a certificate\n");
    }
    ~misleading_files()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    static misleading_files const& instance()
    {
        static misleading_files const made;
        return made;
    }
};

// The envelope the library writes for the request, to compare with what
// reached the server.
std::string expected_envelope(nfe::sefaz_data::requisicao::status_autorizador const& request, char const* versao,
                              std::string const& prefix, std::string const& header_form)
{
    stack result;
    velk::xml::document document;
    document.append_node(request.get_xml(result), result);
    soap::message const message = soap::make_message(document, request.get_estado(), versao, service_namespace,
                                                     prefix, header_form, result);
    std::string envelope = soap::write_envelope(message, result).to_string();
    EXPECT_FALSE(result.has_failed()) << result.to_string();
    return envelope;
}

// consStatServ as it stands inside the recorded envelope.
velk::xml::element recorded_message(byte_array const& envelope)
{
    velk::xml::document const parsed = velk::test::parse_or_fail(envelope.to_string());
    velk::xml::element const* body = parsed.get_root_element()->find_child("Body");
    velk::xml::element const* dados = body == nullptr ? nullptr : body->find_child("nfeDadosMsg");
    velk::xml::element const* message = dados == nullptr ? nullptr : dados->find_child("consStatServ");
    return message == nullptr ? velk::xml::element() : *message;
}

TEST(status_autorizador_exchange, query_over_mutual_tls_and_what_reached_the_server)
{
    struct row {
        nfe::versao versao;
        char const* versao_text;
        char const* prefix;
        char const* header_form;
    } const rows[] = {
        {nfe::versao::versao_4_00, "4.00", "", ""},
        {nfe::versao::versao_3_10, "3.10", "", "sem_namespace"},
        {nfe::versao::versao_4_00, "4.00", "nfe", "com_namespace"},
    };
    sefaz_simulator const simulator;
    nfe::servico::status_autorizador const service = ready_service();
    for (row const& each : rows) {
        SCOPED_TRACE(std::string(each.versao_text) + " prefix '" + each.prefix + "' header '" + each.header_form + "'");
        auto const request = status_request(each.versao);
        stack result;
        auto const status =
            service.executar(request, server_at(simulator.url(), each.prefix, each.header_form), result);
        ASSERT_FALSE(result.has_failed()) << result.to_string();
        EXPECT_EQ(status.get_codigo_status(), 107);
        EXPECT_EQ(status.get_motivo(), "Serviço em Operação");
        EXPECT_EQ(status.get_data_recebimento().get_utc_offset(), -180);
        EXPECT_EQ(status.get_tempo_medio().value_or(-1), 1);

        std::string const schema_version = std::string("_v") + each.versao_text + ".xsd";
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / ("retConsStatServ" + schema_version),
                                                      status.get_xml()),
                  std::vector<std::string>());

        std::vector<byte_array> const received = simulator.recorded_requests();
        ASSERT_FALSE(received.empty());
        EXPECT_EQ(received.back().to_string(), expected_envelope(request, each.versao_text, each.prefix, each.header_form));
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / ("consStatServ" + schema_version),
                                                      recorded_message(received.back())),
                  std::vector<std::string>());
    }

    std::string const headers = simulator.recorded_headers().front();
    for (std::string const& line :
         {std::string("POST /ws/NFeStatusServico4.asmx HTTP/1.1\n"),
          "Content-Type: application/soap+xml; charset=utf-8; action=\"" + std::string(action) + "\"\n",
          "SOAPAction: \"" + std::string(action) + "\"\n", std::string("Connection: close\n"),
          std::string("User-Agent: velk-erp/4.0.0\n")}) {
        EXPECT_NE(headers.find(line), std::string::npos) << line << "in\n" << headers;
    }
}

// A loopback port where nothing listens.
int closed_port()
{
    int const probe = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(probe, reinterpret_cast<sockaddr*>(&address), sizeof address);
    socklen_t size = sizeof address;
    getsockname(probe, reinterpret_cast<sockaddr*>(&address), &size);
    close(probe);
    return ntohs(address.sin_port);
}

struct failure_case {
    char const* name;
    std::vector<std::string> simulator_options;
    std::function<void(nfe::servico::status_autorizador&)> adjust_service;
    category const& category_on_top;
    int code;
    texts arguments;  // checked exactly; a value "*" only for presence
    // Category and code beneath the top, when the report is chained.
    category const* category_beneath = nullptr;
    int code_beneath = 0;
    // A second code that is as right as `code`: which one comes depends on
    // when the peer's refusal arrives.
    int or_code = 0;
};

void expect_report(failure_case const& each, stack const& result)
{
    ASSERT_TRUE(result.has_failed()) << "expected a failure";
    EXPECT_EQ(result.get_category(), each.category_on_top) << result.to_string();
    if (result.get_value() != each.or_code) {
        EXPECT_EQ(result.get_value(), each.code) << result.to_string();
    }
    texts found;
    for (auto const& [name, value] : result.top().get_arguments()) {
        // "*" stands for any text that is not empty.
        auto const wanted = each.arguments.find(name);
        bool const any = wanted != each.arguments.end() && wanted->second == "*";
        found[name] = any && !value.empty() ? "*" : value;
    }
    EXPECT_EQ(found, each.arguments) << result.to_string();
    if (each.category_beneath == nullptr) {
        EXPECT_EQ(result.size(), 1u) << result.to_string();
    } else {
        ASSERT_EQ(result.size(), 2u) << result.to_string();
        EXPECT_EQ(result.begin()->get_category(), *each.category_beneath) << result.to_string();
        EXPECT_EQ(result.begin()->get_value(), each.code_beneath) << result.to_string();
    }
}

TEST(status_autorizador_exchange, each_way_the_exchange_fails)
{
    auto const& curl = soap::curl_result_category::instance();
    auto const& servico = nfe::servico_result_category::instance();
    auto const& processo = nfe::processo_recuperar_resposta_result_category::instance();
    auto const& sefaz_data = nfe::sefaz_data::result_category::instance();
    texts const any_curl_message = {{"curl_message", "*"}};
    std::string const any = "*";
    auto const unchanged = [](nfe::servico::status_autorizador&) {};
    auto const use_stranger_client = [](nfe::servico::status_autorizador& service) {
        stack result;
        auto const bundle =
            velk::cryptography::pkcs12::from_byte_array(stranger_pki::instance().client_pkcs12, "x", result);
        service.set_auth(bundle, sefaz_simulator::pki().ca_file().string());
    };
    auto const trust = [](std::filesystem::path const& ca_file) {
        return [ca_file](nfe::servico::status_autorizador& service) {
            service.set_auth(taxpayer_bundle(), ca_file.string());
        };
    };

    std::string const detail =
        "<soap:Detail xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><erro xmlns=\"urn:velk:sefaz-sim\">"
        "<codigo>999</codigo><descricao>Manuten\\xC3\\xA7\\xC3\\xA3o programada</descricao></erro></soap:Detail>";

    std::vector<failure_case> const cases = {
        {"time-out", {"--fault", "delay", "--delay-ms", "4000"},
         [](auto& service) { service.set_timeout(std::chrono::milliseconds(400)); }, curl, 11, any_curl_message},
        {"HTTP 500", {"--fault", "http-500"}, unchanged, curl, 8, any_curl_message},
        {"connection closed without an answer", {"--fault", "close"}, unchanged, curl, 16, any_curl_message},
        {"server certificate not trusted", {},
         [](auto& service) { service.set_auth(taxpayer_bundle(), stranger_pki::instance().ca_file.string()); }, curl,
         20, any_curl_message},
        {"server certificate for another host name", misleading_files::instance().misnamed_server, unchanged, curl,
         20, any_curl_message},
        {"list of trusted authorities missing", {}, trust(misleading_files::instance().missing_ca), curl, 21,
         any_curl_message},
        {"list of trusted authorities without a certificate", {},
         trust(misleading_files::instance().ca_without_certificate), curl, 21, any_curl_message},
        // Obsolete, and without forward secrecy: recorded traffic could be
        // read once the server's key leaks.
        {"server that speaks only TLS 1.1", {"--tls-max", "1.1"}, unchanged, curl, 13, any_curl_message},
        {"no client certificate in the bundle", {},
         [](auto& service) {
             service.set_auth(velk::cryptography::pkcs12(), sefaz_simulator::pki().ca_file().string());
         },
         curl, 19, any_curl_message},
        // Under TLS 1.2 the server refuses the certificate inside the
        // handshake; under TLS 1.3 the client has finished its part by then
        // and meets the refusal when it sends the request or reads the answer.
        {"client certificate refused by the server, TLS 1.2", {"--tls-max", "1.2"}, use_stranger_client, curl, 13,
         any_curl_message},
        {"client certificate refused by the server, TLS 1.3", {}, use_stranger_client, curl, 17, any_curl_message,
         nullptr, 0, 18},
        {"SOAP fault", {"--fault", "soap-fault"}, unchanged, servico, 4,
         {{"fault.code.value", "soap:Receiver"},
          {"fault.reason.text", "Serviço temporariamente indisponível"},
          {"fault.detail", detail}}},
        {"answer that is no XML", {"--fault", "malformed"}, unchanged, servico, 16,
         {{"description", "A receita não respondeu um xml válido"},
          {"soap_message", "<soap:Envelope xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><soap:Body>"
                           "<nfeResultMsg>"}},
         &velk::xml::xml_result_category::instance(), 1},
        {"two Body elements", {"--fault", "two-bodies"}, unchanged, servico, 16,
         {{"description", "Foi encontrado mais de um body na mesma resposta da receita"}, {"soap_message", any}}},
        {"pretty-printed answer", {"--fault", "text-node"}, unchanged, servico, 16,
         {{"description", "Foi encontrado um node inválido na resposta da receita"}, {"soap_message", any}}},
        {"unexpected result tag", {"--fault", "wrong-result-tag"}, unchanged, servico, 11, {}, &processo, 2},
        {"answer of another service", {"--fault", "wrong-root"}, unchanged, servico, 2, {}, &sefaz_data, 1},
    };
    for (failure_case const& each : cases) {
        SCOPED_TRACE(each.name);
        sefaz_simulator const simulator(each.simulator_options);
        nfe::servico::status_autorizador service = ready_service();
        each.adjust_service(service);
        stack result;
        auto const status = service.executar(status_request(nfe::versao::versao_4_00), server_at(simulator.url()), result);
        expect_report(each, result);
        EXPECT_EQ(status.get_codigo_status(), 0);
    }
}

TEST(status_autorizador_exchange, beneath_the_codes_11_and_2)
{
    sefaz_simulator const wrong_tag({"--fault", "wrong-result-tag"});
    stack result;
    ready_service().executar(status_request(nfe::versao::versao_4_00), server_at(wrong_tag.url()), result);
    ASSERT_EQ(result.size(), 2u) << result.to_string();
    EXPECT_EQ(result.begin()->get_arguments(),
              (std::vector<std::pair<std::string, std::string>>{
                  {"unexpected_element_name", "nfeRespostaMsg"},
                  {"valid_element_names", "[nfeStatusServicoNFResult, nfeStatusServicoNF2Result, nfeResultMsg]"}}));

    sefaz_simulator const wrong_root({"--fault", "wrong-root"});
    result.reset();
    auto const status =
        ready_service().executar(status_request(nfe::versao::versao_4_00), server_at(wrong_root.url()), result);
    ASSERT_EQ(result.size(), 2u) << result.to_string();
    EXPECT_EQ(result.begin()->get_arguments(),
              (std::vector<std::pair<std::string, std::string>>{{"element-name", "retConsStatServ"}}));
    EXPECT_TRUE(result.top().get_arguments().empty()) << "an empty description is left out";
    EXPECT_EQ(status.get_xml().get_name(), "retConsSitNFe") << "the tree that came is kept";
}

TEST(status_autorizador_exchange, nothing_is_sent_without_action_or_time_out)
{
    sefaz_simulator const simulator;
    nfe::web_server_info without_action = server_at(simulator.url());
    without_action.set_action_url("");
    nfe::servico::status_autorizador without_timeout = ready_service();
    without_timeout.set_timeout(std::chrono::milliseconds(0));
    struct row {
        char const* case_name;
        nfe::servico::status_autorizador service;
        nfe::web_server_info server;
        int code;
        texts arguments;
    } const rows[] = {
        {"empty action", ready_service(), without_action, 5, {{"Endpoint", simulator.url()}, {"Action", ""}}},
        {"no time-out", without_timeout, server_at(simulator.url()), 3, {}},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.case_name);
        stack result;
        each.service.executar(status_request(nfe::versao::versao_4_00), each.server, result);
        expect_report({each.case_name, {}, {}, nfe::servico_result_category::instance(), each.code, each.arguments},
                      result);
    }
    EXPECT_TRUE(simulator.recorded_requests().empty());
}

TEST(status_autorizador_exchange, refused_connection)
{
    stack result;
    ready_service().executar(status_request(nfe::versao::versao_4_00),
                             server_at("https://127.0.0.1:" + std::to_string(closed_port()) + "/ws"), result);
    ASSERT_EQ(result.size(), 1u);
    EXPECT_EQ(result.get_category(), soap::curl_result_category::instance());
    EXPECT_EQ(result.get_value(), 5);
    EXPECT_NE(result.top().find_argument("curl_message"), nullptr);
}

TEST(status_autorizador_exchange, simulator_answers_a_message_its_schema_refuses_with_a_rejection)
{
    // The library cannot write such a request, so it goes through the
    // connection by hand: the rejection is an answer like any other.
    sefaz_simulator const simulator;
    stack result;
    velk::xml::document request;
    request.load(byte_array("<consStatServ xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\">"
                            "<tpAmb>2</tpAmb><cUF>35</cUF><xServ>STATUX</xServ></consStatServ>"),
                 result);
    soap::message const message =
        soap::make_message(request, velk::erp::estado::sp, "4.00", service_namespace, "", "", result);
    auto auth = std::make_shared<soap::connection::auth_impl const>(
        soap::connection::auth_impl{taxpayer_bundle(), sefaz_simulator::pki().ca_file().string()});
    soap::connection const link({}, std::chrono::milliseconds(10000), auth);
    soap::message const answer = link.send(message, simulator.url(), action, result);
    velk::xml::document const document = soap::extract_result_document(answer, {"nfeResultMsg"}, result);
    auto const status = nfe::sefaz_data::resposta::status_autorizador::from_xml(document, result);
    ASSERT_FALSE(result.has_failed()) << result.to_string();
    EXPECT_EQ(status.get_codigo_status(), 215);
    EXPECT_EQ(status.get_motivo(), "Rejeição: Falha no schema XML");
}

}  // namespace
