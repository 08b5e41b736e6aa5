// Authorization against the SEFAZ simulator on the loopback, as an issuer
// does it: the document read, then signed, put in a batch, sent over mutual
// TLS and the answer read. One NFC-e of five items answered at once, beside a
// status query of the same run (the bare cost of a call); and a batch of 50
// NF-e sent for a receipt, whose query gives the 50 protocols. Each round
// gets documents of new numbers, which are made with the clock stopped: an
// authority refuses a number it has authorized. Wall-clock times: the
// authority is another process.
#include "documento_de_exemplo.hpp"
#include "throwaway_certificate.hpp"

#include <sefaz-sim/launch/loopback_pki.hpp>
#include <sefaz-sim/launch/simulator_process.hpp>
#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>
#include <velk/xml/document.hpp>

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace sim = velk::tools::sefaz_sim;
using nfe::sefaz_data::requisicao::documento_fiscal;
using velk::core::result::stack;

// One simulator for the whole program; a receipt is answered at once.
struct bench_setup {
    std::filesystem::path folder = std::filesystem::path(VELK_BINARY_DIR) / "bench-scratch" /
                                   ("autorizacao-" + std::to_string(getpid()));
    sim::loopback_pki pki{folder};
    sim::simulator_process simulator{std::filesystem::path(VELK_BINARY_DIR) / "tools" / "sefaz-sim" / "velk-sefaz-sim",
                                     arguments()};
    nfe::web_server_info server;
    nfe::servico::autorizacao autorizacao;
    nfe::servico::consulta_recibo recibo;
    nfe::servico::status_autorizador status;
    unsigned next_number = 1;

    std::vector<std::string> arguments() const
    {
        std::vector<std::string> words = pki.server_arguments();
        words.insert(words.end(), {"--processing-polls", "0"});
        return words;
    }

    bench_setup()
    {
        stack result;
        auto const tls = velk::cryptography::pkcs12::from_byte_array(pki.client_pkcs12(), pki.password(), result);
        if (result.has_failed()) {
            throw std::runtime_error(result.to_string());
        }
        for (nfe::servico::servico_base* service :
             std::initializer_list<nfe::servico::servico_base*>{&autorizacao, &recibo, &status}) {
            service->set_auth(tls, pki.ca_file().string());
            service->set_timeout(std::chrono::milliseconds(10000));
        }
        velk::bench::throwaway_certificate();  // the key is made once, outside any round
        server.set_endpoint_url(simulator.url("/ws/NFeAutorizacao4.asmx"));
        server.set_action_url("http://www.portalfiscal.inf.br/nfe/wsdl/NFeAutorizacao4/nfeAutorizacaoLote");
        server.set_namespace_url("http://www.portalfiscal.inf.br/nfe/wsdl/NFeAutorizacao4");
    }

    ~bench_setup() { std::filesystem::remove_all(folder); }

    static bench_setup& instance()
    {
        static bench_setup made;
        return made;
    }

    // Unsigned documents of numbers not used before.
    std::vector<documento_fiscal> fresh_documents(int count, int items, bool nfce)
    {
        std::vector<documento_fiscal> documents;
        stack result;
        for (int index = 0; index < count; ++index) {
            velk::xml::document text;
            text.load(velk::core::byte_array(velk::bench::document_text(items, nfce, next_number++)), result);
            documents.push_back(documento_fiscal::from_xml(text, result));
        }
        if (result.has_failed()) {
            throw std::runtime_error(result.to_string());
        }
        return documents;
    }
};

// Signs the documents and sends them in one batch; the answer.
nfe::sefaz_data::resposta::lote_autorizacao send(bench_setup& setup, std::vector<documento_fiscal>& documents,
                                                 bool synchronous, stack& result)
{
    nfe::sefaz_data::requisicao::lote_autorizacao lote;
    lote.set_versao(nfe::versao::versao_4_00);
    lote.set_id(setup.next_number);
    lote.set_indicador_sincrono(synchronous);
    for (documento_fiscal& document : documents) {
        document.assinar(velk::bench::throwaway_certificate(), result);
        lote.append_documento_fiscal(document, result);
    }
    return setup.autorizacao.executar(lote, setup.server, result);
}

// The protocols all say 100, or the round is an error.
bool all_authorized(nfe::sefaz_data::resposta::lote_autorizacao const& answer, std::size_t count)
{
    auto const protocols = answer.get_protocolos();
    if (protocols.size() != count) {
        return false;
    }
    for (auto const& protocol : protocols) {
        if (protocol.get_codigo_status() != 100) {
            return false;
        }
    }
    return true;
}

void status_round_trip(benchmark::State& state)
{
    bench_setup& setup = bench_setup::instance();
    nfe::sefaz_data::requisicao::status_autorizador request;
    request.set_versao(nfe::versao::versao_4_00);
    request.set_estado(velk::erp::estado::pr);
    for (auto _ : state) {
        stack result;
        auto const answer = setup.status.executar(request, setup.server, result);
        if (result.has_failed() || answer.get_codigo_status() != 107) {
            state.SkipWithError(result.to_string().c_str());
            break;
        }
    }
}

void nfce_5_items_synchronous(benchmark::State& state)
{
    bench_setup& setup = bench_setup::instance();
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<documento_fiscal> documents = setup.fresh_documents(1, 5, true);
        state.ResumeTiming();
        stack result;
        auto const answer = send(setup, documents, true, result);
        if (result.has_failed() || answer.get_codigo_status() != 104 || !all_authorized(answer, 1)) {
            state.SkipWithError(result.has_failed() ? result.to_string().c_str() : "not authorized");
            break;
        }
    }
}

void nfe_batch_of_50_through_receipt(benchmark::State& state)
{
    bench_setup& setup = bench_setup::instance();
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<documento_fiscal> documents = setup.fresh_documents(50, 5, false);
        state.ResumeTiming();
        stack result;
        auto const received = send(setup, documents, false, result);
        if (result.has_failed() || !received.get_numero_recibo()) {
            state.SkipWithError(result.has_failed() ? result.to_string().c_str() : "no receipt");
            break;
        }
        auto const processed = setup.recibo.executar(
            nfe::sefaz_data::requisicao::consulta_recibo::from_data(velk::erp::tarn::ambiente::homologacao,
                                                                   nfe::versao::versao_4_00,
                                                                   *received.get_numero_recibo(), velk::erp::estado::pr,
                                                                   velk::erp::tarn::modelo::nfe),
            setup.server, result);
        if (result.has_failed() || !all_authorized(processed, 50)) {
            state.SkipWithError(result.has_failed() ? result.to_string().c_str() : "not all authorized");
            break;
        }
    }
    state.counters["documents"] = benchmark::Counter(50.0 * static_cast<double>(state.iterations()),
                                                     benchmark::Counter::kIsRate);
}

BENCHMARK(status_round_trip)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(nfce_5_items_synchronous)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(nfe_batch_of_50_through_receipt)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
