// Status queries per second against the SEFAZ simulator on the loopback, each
// with a new libcurl handle and a full TLS handshake with the client
// certificate, as the library works. Beside it, the same POST made by libcurl's
// easy interface directly (certificate and key from PEM files, the same
// envelope and headers, a new handle per request), and by the curl program,
// one process per request. The library should need at most 1.3 times the time
// of the plain libcurl request. Times are wall-clock per request: the server
// is another process, so CPU time of this one says little.
#include <sefaz-sim/launch/loopback_pki.hpp>
#include <sefaz-sim/launch/simulator_process.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/detail/soap/envelope.hpp>
#include <velk/erp/tarn/detail/soap/make_message.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>

#include <benchmark/benchmark.h>
#include <curl/curl.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

extern char** environ;

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace soap = velk::erp::tarn::detail::soap;
namespace sim = velk::tools::sefaz_sim;

constexpr char service_namespace[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4";
constexpr char action[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4/nfeStatusServicoNF";

void write_file(std::filesystem::path const& path, std::string const& contents)
{
    std::ofstream out(path, std::ios::binary);
    out << contents;
}

// One simulator and its certificates for the whole program.
struct bench_setup {
    std::filesystem::path folder = std::filesystem::path(VELK_BINARY_DIR) / "bench-scratch" /
                                   ("status-" + std::to_string(getpid()));
    sim::loopback_pki pki{folder};
    sim::simulator_process simulator{std::filesystem::path(VELK_BINARY_DIR) / "tools" / "sefaz-sim" / "velk-sefaz-sim",
                                     pki.server_arguments()};
    std::string url = simulator.url("/ws/NFeStatusServico4.asmx");
    std::filesystem::path client_certificate = folder / "client.pem";
    std::filesystem::path client_key = folder / "client-key.pem";
    std::filesystem::path envelope_file = folder / "envelope.xml";

    nfe::sefaz_data::requisicao::status_autorizador request;
    nfe::web_server_info server;
    nfe::servico::status_autorizador service;
    std::string envelope;

    bench_setup()
    {
        write_file(client_certificate, pki.client().certificate_pem());
        write_file(client_key, pki.client().private_key_pem());

        velk::core::result::stack result;
        service.set_auth(velk::cryptography::pkcs12::from_byte_array(pki.client_pkcs12(), pki.password(), result),
                         pki.ca_file().string());
        service.set_timeout(std::chrono::milliseconds(10000));
        server.set_endpoint_url(url);
        server.set_action_url(action);
        server.set_namespace_url(service_namespace);
        request.set_versao(nfe::versao::versao_4_00);
        request.set_estado(velk::erp::estado::sp);

        velk::xml::document document;
        document.append_node(request.get_xml(result), result);
        soap::message const message =
            soap::make_message(document, velk::erp::estado::sp, "4.00", service_namespace, "", "", result);
        envelope = soap::write_envelope(message, result).to_string();
        write_file(envelope_file, envelope);
        if (result.has_failed()) {
            throw std::runtime_error(result.to_string());
        }
    }

    ~bench_setup() { std::filesystem::remove_all(folder); }

    static bench_setup& instance()
    {
        static bench_setup made;
        return made;
    }
};

void library_status_query(benchmark::State& state)
{
    bench_setup& setup = bench_setup::instance();
    for (auto _ : state) {
        velk::core::result::stack result;
        auto const status = setup.service.executar(setup.request, setup.server, result);
        if (result.has_failed() || status.get_codigo_status() != 107) {
            state.SkipWithError(result.to_string().c_str());
            break;
        }
    }
}

size_t keep_answer(char* data, size_t size, size_t count, void* answer)
{
    static_cast<std::string*>(answer)->append(data, size * count);
    return size * count;
}

void libcurl_easy_post(benchmark::State& state)
{
    bench_setup& setup = bench_setup::instance();
    std::string const content_type =
        std::string("Content-Type: application/soap+xml; charset=utf-8; action=\"") + action + "\"";
    std::string const soap_action = std::string("SOAPAction: \"") + action + "\"";
    for (auto _ : state) {
        CURL* handle = curl_easy_init();
        curl_slist* headers = curl_slist_append(nullptr, content_type.c_str());
        headers = curl_slist_append(headers, "Connection: close");
        headers = curl_slist_append(headers, soap_action.c_str());
        std::string answer;
        curl_easy_setopt(handle, CURLOPT_URL, setup.url.c_str());
        curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);
        curl_easy_setopt(handle, CURLOPT_ACCEPT_ENCODING, "");
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, setup.envelope.data());
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(setup.envelope.size()));
        curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer);
        curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &keep_answer);
        curl_easy_setopt(handle, CURLOPT_FAILONERROR, 1L);
        curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, 10000L);
        curl_easy_setopt(handle, CURLOPT_CAINFO, setup.pki.ca_file().c_str());
        curl_easy_setopt(handle, CURLOPT_SSLCERT, setup.client_certificate.c_str());
        curl_easy_setopt(handle, CURLOPT_SSLKEY, setup.client_key.c_str());
        CURLcode const performed = curl_easy_perform(handle);
        curl_slist_free_all(headers);
        curl_easy_cleanup(handle);
        if (performed != CURLE_OK || answer.find("<cStat>107</cStat>") == std::string::npos) {
            state.SkipWithError(curl_easy_strerror(performed));
            break;
        }
    }
}

// The curl program: process start, TLS handshake, POST, exit.
void curl_program_post(benchmark::State& state)
{
    bench_setup& setup = bench_setup::instance();
    std::vector<std::string> words = {"curl", "--silent", "--show-error", "--fail", "--output", "/dev/null",
                                      "--cacert", setup.pki.ca_file().string(),
                                      "--cert", setup.client_certificate.string(),
                                      "--key", setup.client_key.string(),
                                      "--header", std::string("Content-Type: application/soap+xml; charset=utf-8; action=\"") + action + "\"",
                                      "--header", "Connection: close",
                                      "--header", std::string("SOAPAction: \"") + action + "\"",
                                      "--data-binary", "@" + setup.envelope_file.string(), setup.url};
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    for (auto _ : state) {
        pid_t child = 0;
        if (posix_spawnp(&child, "curl", nullptr, nullptr, argv.data(), environ) != 0) {
            state.SkipWithError("curl program not found");
            break;
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            state.SkipWithError("curl program failed");
            break;
        }
    }
}

}  // namespace

BENCHMARK(library_status_query)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3.0);
BENCHMARK(libcurl_easy_post)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3.0);
BENCHMARK(curl_program_post)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3.0);

BENCHMARK_MAIN();
