// The memory of the JSON road: how much a document takes at its peak while
// it is made (the heap in use, counted by this program's own allocation
// functions, through which the library, libxml2, OpenSSL and protobuf all
// allocate), how much the signed document keeps, and whether issuing
// documents one after another grows the process: the resident size after
// 1,000 and after 100,000 signed NFC-e. Not a timed test: run it by hand,
//
//   build/bench/memoria/velk-bench-memoria [documents]
//
// (100,000 by default, a minute or two).
#include "../nota_de_exemplo.hpp"
#include "../throwaway_certificate.hpp"

#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <malloc.h>

#include <atomic>
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

}  // namespace

int main(int argc, char** argv)
{
    long const documents = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 100000;
    velk::bench::throwaway_certificate();
    per_document("NFC-e 5 items", 5, true);
    per_document("NF-e 100 items", 100, false);

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
