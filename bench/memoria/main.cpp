// The memory of the JSON road: how much a document takes at its peak while
// it is made (the heap in use, counted by this program's own allocation
// functions, through which the library, libxml2, OpenSSL and protobuf all
// allocate), how much the signed document keeps, and whether issuing
// documents one after another grows the process: the resident size after
// 1,000 and after 100,000 signed NFC-e. Not a timed test: run it by hand,
//
//   build/bench/memoria/velk-bench-memoria [documents]
//
// (100,000 by default, a minute or two). It also gives the memory and time
// that inputs of many small parts cost by the byte.
#include "../nota_de_exemplo.hpp"
#include "../throwaway_certificate.hpp"

#include <velk/cryptography/xml/canonical_digest.hpp>
#include <velk/erp/tarn/detail/soap/extract_result_document.hpp>
#include <velk/erp/tarn/detail/soap/parse_response.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <malloc.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* pointer, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* pointer);
}

namespace {

std::atomic<long long> in_use{0};
std::atomic<long long> peak{0};

void* counted(void* pointer)
{
    if (pointer != nullptr) {
        long long const now = in_use += static_cast<long long>(malloc_usable_size(pointer));
        long long seen = peak.load(std::memory_order_relaxed);
        while (now > seen && !peak.compare_exchange_weak(seen, now, std::memory_order_relaxed)) {
        }
    }
    return pointer;
}

void uncounted(void* pointer)
{
    if (pointer != nullptr) {
        in_use -= static_cast<long long>(malloc_usable_size(pointer));
    }
}

}  // namespace

// Every allocation of the process passes here.
extern "C" {
void* malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

void* realloc(void* pointer, std::size_t size)
{
    uncounted(pointer);
    void* moved = __libc_realloc(pointer, size);
    if (moved == nullptr && size != 0) {
        counted(pointer);  // the old block stays
        return nullptr;
    }
    return counted(moved);
}

void free(void* pointer)
{
    uncounted(pointer);
    __libc_free(pointer);
}

void* memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

int posix_memalign(void** result, std::size_t alignment, std::size_t size)
{
    void* pointer = __libc_memalign(alignment, size);
    if (pointer == nullptr) {
        return 12;  // ENOMEM
    }
    *result = counted(pointer);
    return 0;
}
}

namespace {

namespace nfe = velk::erp::tarn::nfe;
using nfe::sefaz_data::requisicao::documento_fiscal;

documento_fiscal issue(std::string const& texto, bool nfce)
{
    velk::core::result::stack stack;
    velk::bench::serialization::NotaFiscal nota;
    nfe::protobuf::ler_nota_json(texto, nota, stack);
    documento_fiscal documento =
        documento_fiscal::from_xml(nfe::protobuf::generate_document_4_00(nota, stack), stack);
    if (nfce) {
        documento.gerar_qrcode(velk::bench::informacoes_qrcode(), velk::bench::id_token, velk::bench::csc, stack);
    }
    documento.assinar(velk::bench::throwaway_certificate(), stack);
    if (stack.has_failed()) {
        std::fprintf(stderr, "%s\n", stack.to_string().c_str());
        std::exit(1);
    }
    return documento;
}

long resident_kib()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmRSS:", 0) == 0) {
            return std::strtol(line.c_str() + 6, nullptr, 10);
        }
    }
    return -1;
}

// The heap a document takes at its peak while it is made from its JSON
// text, and what the signed document keeps; the text itself is the caller's.
void per_document(char const* name, int items, bool nfce)
{
    std::string const texto = velk::bench::nota_json_de_exemplo(items, nfce);
    issue(texto, nfce);  // the first document sets up what every later one shares
    long long const before = in_use.load();
    peak.store(before);
    // Issued by a thread of its own, which starts with none of the tree's
    // pieces that a thread keeps from its earlier documents: every piece of
    // this one is counted, and what the thread kept is released as it ends.
    documento_fiscal kept;
    std::thread([&] { kept = issue(texto, nfce); }).join();
    long long const top = peak.load() - before;
    long long const held = in_use.load() - before;
    std::printf("%-14s JSON %7zu bytes; peak heap while issuing %8.1f KiB; signed document keeps %8.1f KiB\n", name,
                texto.size(), static_cast<double>(top) / 1024, static_cast<double>(held) / 1024);
}

// The heap at its peak while `step` runs, beyond what was in use before it,
// and what is still held after it.
void heap_of(char const* what, std::size_t input_bytes, std::function<void()> const& step)
{
    long long const before = in_use.load();
    peak.store(before);
    auto const start = std::chrono::steady_clock::now();
    step();
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    double const top = static_cast<double>(peak.load() - before);
    std::printf("%-52s %9.1f MiB peak (%5.1fx the input) %8.3f s\n", what, top / (1 << 20),
                top / static_cast<double>(input_bytes), seconds);
}

std::string repeated(std::string const& piece, std::size_t bytes)
{
    std::string text;
    text.reserve(bytes + piece.size());
    while (text.size() < bytes) {
        text += piece;
    }
    return text;
}

// What outside bytes cost by the byte: trees of many small elements, a large
// answer of the authority, and elements of as many attributes or declarations
// as a document may give one.
void per_byte_of_input()
{
    namespace soap = velk::erp::tarn::detail::soap;
    using velk::core::byte_array;
    constexpr std::size_t four_mib = std::size_t{4} << 20;
    std::printf("\nInputs of many small parts (each on a thread of its own):\n");

    std::string const empty_elements =
        "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe>" + repeated("<a/>", four_mib) + "</infNFe></NFe>";
    byte_array const empty_bytes(empty_elements);
    std::thread([&] {
        heap_of("4 MiB of empty elements, read", empty_bytes.size(), [&] {
            velk::xml::document document;
            velk::core::result::stack stack;
            document.load(empty_bytes, stack);
        });
        heap_of("the same, read and taken by documento_fiscal", empty_bytes.size(), [&] {
            velk::xml::document document;
            velk::core::result::stack stack;
            document.load(empty_bytes, stack);
            documento_fiscal const taken = documento_fiscal::from_xml(std::move(document), stack);
        });
    }).join();

    std::string const answer =
        "<soap:Envelope xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><soap:Body>"
        "<nfeResultMsg xmlns=\"http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4\">"
        "<retConsStatServ xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\"><tpAmb>2</tpAmb>"
        "<verAplic>SP_NFE_PL_008i2</verAplic><cStat>107</cStat><xMotivo>Servico em Operacao</xMotivo><cUF>35</cUF>"
        "<dhRecbto>2026-11-24T10:00:00-03:00</dhRecbto><tMed>1</tMed>" +
        repeated("<x/>", four_mib) + "</retConsStatServ></nfeResultMsg></soap:Body></soap:Envelope>";
    byte_array const answer_bytes(answer);
    std::thread([&] {
        heap_of("4 MiB status answer, read from SOAP to its document", answer_bytes.size(), [&] {
            velk::core::result::stack stack;
            soap::message read = soap::parse_response(answer_bytes, stack);
            velk::xml::document const result =
                soap::extract_result_document(std::move(read), {"nfeResultMsg", "nfeStatusServicoNFResult"}, stack);
        });
    }).join();

    // The most attributes and declarations an element may have, element
    // after element.
    std::string attributes = "<e";
    std::string declarations = "<e";
    for (int i = 0; i < 256; ++i) {
        attributes += " a" + std::to_string(i) + "=\"v\"";
        declarations += " xmlns:p" + std::to_string(i) + "=\"urn:velk:" + std::to_string(i) + "\"";
    }
    attributes = "<r>" + repeated(attributes + "/>", four_mib) + "</r>";
    declarations = "<r>" + repeated(declarations + "/>", four_mib) + "</r>";
    for (auto const& [what, text] : {std::pair<char const*, std::string const*>{"4 MiB of elements of 256 attributes, read and digested", &attributes},
                                     {"4 MiB of elements of 256 declarations, read and digested", &declarations}}) {
        byte_array const bytes(*text);
        std::thread([&, what = what] {
            heap_of(what, bytes.size(), [&] {
                velk::xml::document document;
                velk::core::result::stack stack;
                document.load(bytes, stack);
                velk::xml::element const& root = *document.get_root_element();
                velk::cryptography::xml::canonical_digest(root, root, velk::cryptography::cryptographic_hash::algorithm::sha1,
                                                          stack);
                if (stack.has_failed()) {
                    std::fprintf(stderr, "%s\n", stack.to_string().c_str());
                }
            });
        }).join();
    }
}

}  // namespace

int main(int argc, char** argv)
{
    long const documents = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 100000;
    velk::bench::throwaway_certificate();
    per_document("NFC-e 5 items", 5, true);
    per_document("NF-e 100 items", 100, false);
    per_byte_of_input();

    std::string const texto = velk::bench::nota_json_de_exemplo(5, true);
    std::printf("\nNFC-e of 5 items issued one after another (heap peak since the program started):\n"
                "%12s %14s %16s %14s\n%12d %14ld %16.1f %14.1f\n",
                "documents", "resident KiB", "heap in use KiB", "heap peak KiB", 0, resident_kib(),
                static_cast<double>(in_use.load()) / 1024, static_cast<double>(peak.load()) / 1024);
    for (long issued = 1; issued <= documents; ++issued) {
        issue(texto, true);
        if (issued == 1000 || issued == 10000 || issued % 25000 == 0 || issued == documents) {
            std::printf("%12ld %14ld %16.1f %14.1f\n", issued, resident_kib(),
                        static_cast<double>(in_use.load()) / 1024, static_cast<double>(peak.load()) / 1024);
            std::fflush(stdout);
        }
    }
    return 0;
}
