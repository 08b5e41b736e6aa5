// documento_fiscal on a typical NFC-e (about 5 KB, four items, with its QR
// code supplement) and on an NF-e of 100 items: reading, the digest the QR
// code needs before signing, and signing. One RSA-2048 signature alone is the
// yardstick: signing the NFC-e should cost at most 1.3 times that.
#include "documento_de_exemplo.hpp"
#include "throwaway_certificate.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/xml/document.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace {

using velk::bench::document_text;
using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;

velk::xml::element parsed(std::string const& text)
{
    velk::core::result::stack stack;
    velk::xml::document document;
    document.load(velk::core::byte_array(text), stack);
    return *document.get_root_element();
}

void read(benchmark::State& state, int items, bool nfce)
{
    std::string const text = document_text(items, nfce);
    velk::xml::element const nfe = parsed(text);
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(documento_fiscal::from_xml(nfe, stack));
    }
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
    state.counters["document_bytes"] = static_cast<double>(text.size());
}

void digest(benchmark::State& state, int items, bool nfce)
{
    velk::core::result::stack stack;
    documento_fiscal const document = documento_fiscal::from_xml(parsed(document_text(items, nfce)), stack);
    for (auto _ : state) {
        benchmark::DoNotOptimize(document.get_digest_value());
    }
    if (stack.has_failed() || document.get_digest_value().empty()) {
        state.SkipWithError("no digest");
    }
}

// Each round drops the signature of the round before and signs anew.
void sign(benchmark::State& state, int items, bool nfce)
{
    velk::cryptography::pkcs12 const& certificate = velk::bench::throwaway_certificate();
    velk::core::result::stack stack;
    documento_fiscal document = documento_fiscal::from_xml(parsed(document_text(items, nfce)), stack);
    for (auto _ : state) {
        document.assinar(certificate, stack);
    }
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
}

void rsa_2048_signature(benchmark::State& state)
{
    velk::cryptography::evp_private_key const key = velk::bench::throwaway_certificate().get_evp_private_key();
    velk::core::byte_array const signed_info(std::string(900, 'x'));  // a canonical SignedInfo is about that long
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key.sign(velk::cryptography::cryptographic_hash::algorithm::sha1, signed_info, stack));
    }
}

BENCHMARK(rsa_2048_signature);
BENCHMARK_CAPTURE(read, nfce_4_items, 4, true);
BENCHMARK_CAPTURE(digest, nfce_4_items, 4, true);
BENCHMARK_CAPTURE(sign, nfce_4_items, 4, true);
BENCHMARK_CAPTURE(read, nfe_100_items, 100, false);
BENCHMARK_CAPTURE(digest, nfe_100_items, 100, false);
BENCHMARK_CAPTURE(sign, nfe_100_items, 100, false);

}  // namespace

BENCHMARK_MAIN();
