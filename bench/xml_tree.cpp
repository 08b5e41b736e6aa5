// The XML tree on the hot paths of a sale: reading a document, saving it,
// canonicalising it before a digest, and copying a whole NF-e.
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <benchmark/benchmark.h>

#include <string>

namespace {

using velk::core::byte_array;
using velk::core::result::stack;
using namespace velk::xml;

void add_leaf(element& parent, char const* name, std::string const& value)
{
    parent.append_node(element(name, text(value)));
}

// An NF-e shaped tree with `items` products, built as the document writers do.
document make_document(int items)
{
    stack report;
    element root("NFe");
    root.append_namespace(namespace_id("", "http://www.portalfiscal.inf.br/nfe"), report);
    element inf("infNFe");
    inf.append_attribute(attribute("Id", "NFe43180906929383000163650010000000161000000164"), report);
    inf.append_attribute(attribute("versao", "4.00"), report);
    element ide("ide");
    for (char const* name : {"cUF", "cNF", "natOp", "mod", "serie", "nNF", "dhEmi", "tpNF", "idDest", "cMunFG",
                             "tpImp", "tpEmis", "cDV", "tpAmb", "finNFe", "indFinal", "indPres", "procEmi", "verProc"}) {
        add_leaf(ide, name, "4318090692938300016365001");
    }
    inf.append_node(std::move(ide));
    for (int item = 1; item <= items; ++item) {
        element det("det");
        det.append_attribute(attribute("nItem", std::to_string(item)), report);
        element prod("prod");
        for (char const* name : {"cProd", "cEAN", "xProd", "NCM", "CFOP", "uCom", "qCom", "vUnCom", "vProd",
                                 "cEANTrib", "uTrib", "qTrib", "vUnTrib", "indTot"}) {
            add_leaf(prod, name, "Produto & servico <" + std::to_string(item) + ">");
        }
        element tax("imposto");
        for (char const* group : {"ICMS", "PIS", "COFINS"}) {
            element part(group);
            for (char const* name : {"orig", "CST", "vBC", "pAliq", "vValor"}) {
                add_leaf(part, name, "10.00");
            }
            tax.append_node(std::move(part));
        }
        det.append_node(std::move(prod));
        det.append_node(std::move(tax));
        inf.append_node(std::move(det));
    }
    root.append_node(std::move(inf));
    document built;
    built.append_node(std::move(root), report);
    return built;
}

byte_array saved(int items)
{
    stack report;
    return document::save(make_document(items), report);
}

void load(benchmark::State& state)
{
    byte_array const bytes = saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        stack report;
        document parsed;
        parsed.load(bytes, report);
        benchmark::DoNotOptimize(parsed.get_root_element());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}

void save(benchmark::State& state)
{
    document const tree = make_document(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        stack report;
        benchmark::DoNotOptimize(document::save(tree, report));
    }
}

void save_and_canonicalize(benchmark::State& state)
{
    document const tree = make_document(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        stack report;
        benchmark::DoNotOptimize(canonicalize(document::save(tree, report), {}, report));
    }
}

void deep_copy(benchmark::State& state)
{
    document const tree = make_document(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        element copy = *tree.get_root_element();
        benchmark::DoNotOptimize(copy);
    }
}

BENCHMARK(load)->Arg(5)->Arg(100);
BENCHMARK(save)->Arg(5)->Arg(100);
BENCHMARK(save_and_canonicalize)->Arg(5)->Arg(100);
BENCHMARK(deep_copy)->Arg(5)->Arg(100);

}  // namespace

BENCHMARK_MAIN();
