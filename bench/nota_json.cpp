// The whole road of a point of sale that speaks JSON: the note's text read,
// its document generated, the QR code made and the document signed, against
// one RSA-2048 signature alone. The aims: a five-item NFC-e at most 1.1 times
// the signature, a 100-item NF-e at most twice. Each step is measured apart
// too, to see where the time goes; the column x_rsa gives every measure as a
// multiple of the signature of the same run.
#include "nota_de_exemplo.hpp"
#include "razao_assinatura.hpp"
#include "throwaway_certificate.hpp"

#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <benchmark/benchmark.h>
#include <google/protobuf/arena.h>

#include <string>

namespace {

namespace nfe = velk::erp::tarn::nfe;
using nfe::sefaz_data::requisicao::documento_fiscal;
using velk::bench::serialization::NotaFiscal;

void rsa_2048_signature(benchmark::State& state)
{
    velk::cryptography::evp_private_key const key = velk::bench::throwaway_certificate().get_evp_private_key();
    velk::core::byte_array const signed_info(std::string(900, 'x'));
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key.sign(velk::cryptography::cryptographic_hash::algorithm::sha1, signed_info, stack));
    }
}

documento_fiscal gerar(NotaFiscal const& nota, velk::core::result::stack& stack)
{
    return documento_fiscal::from_xml(nfe::protobuf::generate_document_4_00(nota, stack), stack);
}

void fail_on(benchmark::State& state, velk::core::result::stack const& stack)
{
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
}

void json_read(benchmark::State& state, int itens, bool nfce)
{
    std::string const texto = velk::bench::nota_json_de_exemplo(itens, nfce);
    velk::core::result::stack stack;
    for (auto _ : state) {
        NotaFiscal nota;
        benchmark::DoNotOptimize(nfe::protobuf::ler_nota_json(texto, nota, stack));
    }
    fail_on(state, stack);
    state.counters["json_bytes"] = static_cast<double>(texto.size());
}

// The document of layout 4.00 from the message, read into its fields.
void generation(benchmark::State& state, int itens, bool nfce)
{
    NotaFiscal const nota = velk::bench::nota_de_exemplo(itens, nfce);
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(gerar(nota, stack));
    }
    fail_on(state, stack);
}

// Each round takes a fresh copy of the unsigned document, outside the time.
void qrcode(benchmark::State& state, int itens, bool nfce)
{
    velk::core::result::stack stack;
    documento_fiscal const original = gerar(velk::bench::nota_de_exemplo(itens, nfce), stack);
    for (auto _ : state) {
        state.PauseTiming();
        documento_fiscal documento = original;
        state.ResumeTiming();
        documento.gerar_qrcode(velk::bench::informacoes_qrcode(), velk::bench::id_token, velk::bench::csc, stack);
        benchmark::DoNotOptimize(documento);
        state.PauseTiming();
        documento = documento_fiscal();
        state.ResumeTiming();
    }
    fail_on(state, stack);
}

// Each round drops the signature of the round before and signs anew.
void signing(benchmark::State& state, int itens, bool nfce)
{
    auto const& certificado = velk::bench::throwaway_certificate();
    velk::core::result::stack stack;
    documento_fiscal documento = gerar(velk::bench::nota_de_exemplo(itens, nfce), stack);
    if (nfce) {
        documento.gerar_qrcode(velk::bench::informacoes_qrcode(), velk::bench::id_token, velk::bench::csc, stack);
    }
    for (auto _ : state) {
        documento.assinar(certificado, stack);
    }
    fail_on(state, stack);
}

template <bool on_arena>
void road_of(benchmark::State& state, int itens, bool nfce)
{
    std::string const texto = velk::bench::nota_json_de_exemplo(itens, nfce);
    auto const& certificado = velk::bench::throwaway_certificate();
    velk::core::result::stack stack;
    auto const emitir = [&](NotaFiscal& nota) {
        nfe::protobuf::ler_nota_json(texto, nota, stack);
        documento_fiscal documento = gerar(nota, stack);
        if (nfce) {
            documento.gerar_qrcode(velk::bench::informacoes_qrcode(), velk::bench::id_token, velk::bench::csc, stack);
        }
        documento.assinar(certificado, stack);
        benchmark::DoNotOptimize(documento);
    };
    for (auto _ : state) {
        if constexpr (on_arena) {
            google::protobuf::Arena arena;
            emitir(*google::protobuf::Arena::CreateMessage<NotaFiscal>(&arena));
        } else {
            NotaFiscal nota;
            emitir(nota);
        }
    }
    fail_on(state, stack);
    state.counters["json_bytes"] = static_cast<double>(texto.size());
}

void road(benchmark::State& state, int itens, bool nfce)
{
    road_of<false>(state, itens, nfce);
}

// The same road for a caller that keeps the note's message on a protobuf
// arena, as the exported C functions do: its many small parts are dropped
// together instead of one by one.
void road_on_arena(benchmark::State& state, int itens, bool nfce)
{
    road_of<true>(state, itens, nfce);
}

// Documents per second from one and two threads, each issuing its own
// documents with the one certificate: the column per_thread_gain gives what
// the second thread adds (2 would be perfect), beside what it adds to bare
// signatures on the same machine.
void rsa_2048_signature_throughput(benchmark::State& state)
{
    rsa_2048_signature(state);
    state.SetItemsProcessed(state.iterations());
}

void road_throughput(benchmark::State& state, int itens, bool nfce)
{
    road(state, itens, nfce);
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(rsa_2048_signature)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(json_read, nfce_5_itens, 5, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(generation, nfce_5_itens, 5, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(qrcode, nfce_5_itens, 5, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(signing, nfce_5_itens, 5, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(road, nfce_5_itens, 5, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(road_on_arena, nfce_5_itens, 5, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(json_read, nfe_100_itens, 100, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(generation, nfe_100_itens, 100, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(signing, nfe_100_itens, 100, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(road, nfe_100_itens, 100, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(road_on_arena, nfe_100_itens, 100, false)->Unit(benchmark::kMicrosecond);
BENCHMARK(rsa_2048_signature_throughput)->Unit(benchmark::kMicrosecond)->UseRealTime()->Threads(1)->Threads(2);
BENCHMARK_CAPTURE(road_throughput, nfce_5_itens, 5, true)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime()
    ->Threads(1)
    ->Threads(2);

}  // namespace

VELK_BENCHMARK_MAIN_RAZAO();
