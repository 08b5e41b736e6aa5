// What works alike for every service of the simulator: the stop switch, the
// injected faults, the command line, and the process serving over mutual TLS.
#include "authority_fixture.hpp"

#include <sefaz-sim/simulator_options.hpp>

#include <support/files.hpp>
#include <support/sefaz_simulator.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>
#include <httplib.h>

#include <unistd.h>

#include <functional>

namespace {

using namespace velk::test;
using velk::tools::sefaz_sim::simulator_options;
using velk::tools::sefaz_sim::web_services;

// One request of each service, and the root of its answer.
struct service_request {
    char const* answer_root;
    std::string message;
};

std::vector<service_request> one_request_of_each_service()
{
    std::string const nfce = nfce_number(1101);
    return {
        {"retConsStatServ", status_query()},
        {"retEnviNFe", batch({nfce}, true)},
        {"retConsReciNFe", receipt_query("351000000000001")},
        {"retConsSitNFe", query_by_key(key_of(nfce))},
        {"retInutNFe", disablement("12345678000195", 1, 1, 5)},
        {"retConsGTIN", gtin_query("78935761")},
    };
}

TEST(stopped, every_service_answers_stopped)
{
    std::vector<service_request> const requests = one_request_of_each_service();
    for (auto const& [how, status] : {std::pair{"short", 108}, std::pair{"indefinite", 109}}) {
        test_authority authority({"--stopped", how});
        for (service_request const& request : requests) {
            SCOPED_TRACE(std::string(how) + " " + request.answer_root);
            sefaz_answer const answer = authority.ask(request.message);
            EXPECT_EQ(answer.message.get_name(), request.answer_root);
            EXPECT_EQ(answer.status(), status);
        }
    }
}

// The element inside the answer's Body, and the message inside that.
std::pair<std::string, std::string> result_and_message(std::string const& envelope)
{
    velk::xml::element const root = parse_element(envelope);
    velk::xml::element const* result = root.find_child("Body");
    std::vector<std::string> names = result == nullptr ? std::vector<std::string>() : child_element_names(*result);
    if (names.empty()) {
        return {};
    }
    result = result->find_child(names.front());
    velk::xml::element const* results = result->find_child("nfeResultMsg");
    std::vector<std::string> const inside = child_element_names(results == nullptr ? *result : *results);
    return {names.front(), inside.empty() ? std::string() : inside.front()};
}

TEST(faults, every_service_answers_each_fault)
{
    using reply = web_services::reply;
    struct row {
        char const* fault;
        std::function<void(reply const&, service_request const&)> check;
    } const rows[] = {
        {"http-500", [](reply const& got, service_request const&) { EXPECT_EQ(got.http_status, 500); }},
        {"soap-fault",
         [](reply const& got, service_request const&) {
             EXPECT_EQ(result_and_message(got.body).first, "Fault");
         }},
        {"malformed",
         [](reply const& got, service_request const&) { EXPECT_EQ(got.body.find("</soap:Envelope>"), std::string::npos); }},
        {"wrong-result-tag",
         [](reply const& got, service_request const&) {
             EXPECT_EQ(result_and_message(got.body).first, "nfeRespostaMsg");
         }},
        {"wrong-root",
         [](reply const& got, service_request const& request) {
             std::string const message = result_and_message(got.body).second;
             EXPECT_FALSE(message.empty());
             EXPECT_NE(message, request.answer_root);
         }},
        {"text-node",
         [](reply const& got, service_request const&) { EXPECT_NE(got.body.find("\n    <soap:Body>"), std::string::npos); }},
        {"two-bodies",
         [](reply const& got, service_request const&) {
             EXPECT_NE(got.body.find("</soap:Body><soap:Body>"), std::string::npos);
         }},
    };
    std::vector<service_request> const requests = one_request_of_each_service();
    for (row const& each : rows) {
        test_authority authority({"--fault", each.fault});
        for (service_request const& request : requests) {
            SCOPED_TRACE(std::string(each.fault) + " " + request.answer_root);
            each.check(authority.exchange(envelope_of(request.message)), request);
        }
    }
}

TEST(command_line, switches_of_the_authority)
{
    struct row {
        std::vector<std::string> words;
        bool accepted;
        std::string ambiente;
        int stopped;
        int polls;
    } const rows[] = {
        {{}, true, "2", 0, 1},
        {{"--ambiente", "1", "--stopped", "short", "--processing-polls", "0"}, true, "1", 108, 0},
        {{"--stopped", "indefinite"}, true, "2", 109, 1},
        {{"--ambiente", "3"}, false, "", 0, 0},
        {{"--stopped", "yes"}, false, "", 0, 0},
        {{"--processing-polls", "-1"}, false, "", 0, 0},
        {{"--processing-polls"}, false, "", 0, 0},
    };
    for (row const& each : rows) {
        std::vector<std::string> words = {"velk-sefaz-sim", "--cert", "c", "--key", "k", "--client-ca", "ca"};
        words.insert(words.end(), each.words.begin(), each.words.end());
        std::vector<char*> argv;
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        SCOPED_TRACE(testing::PrintToString(each.words));
        simulator_options options;
        std::string error;
        bool const accepted = simulator_options::parse(static_cast<int>(argv.size()), argv.data(), options, error);
        ASSERT_EQ(accepted, each.accepted) << error;
        if (accepted) {
            EXPECT_EQ(options.ambiente, each.ambiente);
            EXPECT_EQ(options.stopped_status, each.stopped);
            EXPECT_EQ(options.processing_polls, each.polls);
        } else {
            EXPECT_FALSE(error.empty());
        }
    }
}

// A client of our own, not the library's: the simulator's process as any
// program meets it.
class tls_client {
public:
    explicit tls_client(sefaz_simulator const& simulator)
        : folder_(client_files()),
          client_("127.0.0.1", simulator.port(), (folder_ / "client.pem").string(), (folder_ / "key.pem").string())
    {
        client_.set_ca_cert_path(sefaz_simulator::pki().ca_file().string());
        client_.enable_server_certificate_verification(true);
    }

    // The answer's body; empty when the exchange failed.
    std::string post(std::string const& message)
    {
        httplib::Result const result =
            client_.Post("/ws/servico.asmx", envelope_of(message), "application/soap+xml; charset=utf-8");
        return result ? result->body : std::string();
    }

private:
    // The client's certificate and key, as the files the client reads.
    static std::filesystem::path client_files()
    {
        std::filesystem::path const folder = scratch_dir("sefaz-sim-client-" + std::to_string(getpid()));
        write_text(folder / "client.pem", sefaz_simulator::pki().client().certificate_pem());
        write_text(folder / "key.pem", sefaz_simulator::pki().client().private_key_pem());
        return folder;
    }

    std::filesystem::path folder_;
    httplib::SSLClient client_;
};

TEST(simulator_process, an_authority_over_mutual_tls_for_the_life_of_the_process)
{
    sefaz_simulator const simulator;
    tls_client client(simulator);
    std::string const nfce = nfce_number(1201);
    EXPECT_NE(client.post(batch({nfce}, true)).find("<cStat>100</cStat>"), std::string::npos);
    EXPECT_NE(client.post(query_by_key(key_of(nfce))).find("<cStat>100</cStat>"), std::string::npos);
    EXPECT_NE(client.post(gtin_query("7891234567895")).find("<cStat>9490</cStat>"), std::string::npos);
    EXPECT_EQ(simulator.recorded_requests().size(), 3u);

    sefaz_simulator const stopped({"--stopped", "indefinite"});
    EXPECT_NE(tls_client(stopped).post(status_query()).find("<cStat>109</cStat>"), std::string::npos);
}

}  // namespace
