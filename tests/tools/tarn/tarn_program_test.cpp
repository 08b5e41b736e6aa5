// Each subcommand of tarn against the simulator, as a script runs them: the
// exit status and what the report says, then the files written, checked by
// tarn validar, xmllint and xmlsec1 alike.
#include "tarn_authority.hpp"
#include "tarn_process.hpp"
#include "validar_findings.hpp"

#include <support/files.hpp>
#include <support/sefaz_simulator.hpp>

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

namespace {

using namespace velk::test;

constexpr char nfce_key[] = "35240912345678000195650010000000031102938497";
constexpr char nfe_key[] = "35240752947106000109550010000602171554129839";

// The key of the bundled NFC-e with another number, its check digit worked
// out: modulo 11 of the first 43 digits, weights 2 to 9 from the right.
std::string nfce_key_of(int number)
{
    std::string const number_digits = std::to_string(number);
    std::string const first_43 = std::string(nfce_key).substr(0, 25) + std::string(9 - number_digits.size(), '0') +
                                 number_digits + std::string(nfce_key).substr(34, 9);
    unsigned sum = 0;
    unsigned weight = 2;
    for (auto digit = first_43.rbegin(); digit != first_43.rend(); ++digit) {
        sum += static_cast<unsigned>(*digit - '0') * weight;
        weight = weight == 9 ? 2 : weight + 1;
    }
    return first_43 + std::to_string(sum % 11 < 2 ? 0 : 11 - sum % 11);
}

struct step {
    char const* what;
    std::vector<std::string> words;
    int status;
    std::vector<std::string> said;  // fragments of the JSON report
};

TEST(tarn_program, each_subcommand_against_the_simulator)
{
    std::filesystem::path const folder = scratch_dir("tarn-road");
    tarn_authority const sefaz(folder);
    for (char const* note : {"nfce-sp.json", "nfe-sp.json"}) {
        std::filesystem::copy_file(tarn_note(note), folder / note);
    }
    std::string const nfce = (folder / "nfce-sp.json").string();
    std::string const nfe = (folder / "nfe-sp.json").string();
    std::string const nfce_proc = (folder / "nfce-sp-nfeProc.xml").string();
    std::string const nfe_proc = (folder / "nfe-sp-nfeProc.xml").string();
    std::vector<std::pair<std::string, std::string>> const csc = {{"TARN_CSC", "CSC0123456789ABCDEF0123456789AB"}};
    std::vector<std::string> const qr = {"--token", "1", "--url-chave",
                                         "https://www.homologacao.nfce.fazenda.sp.gov.br/consulta"};
    auto const with = [](std::vector<std::string> words, std::vector<std::string> const& more) {
        words.insert(words.end(), more.begin(), more.end());
        return words;
    };

    step const steps[] = {
        {"status", {"status", "--uf", "SP"}, 0, {"\"cStat\": 107"}},
        {"NFC-e, synchronous",
         with({"emitir", nfce}, qr),
         0,
         {"\"cStat\": 100", "\"situacao\": \"autorizada\"",
          "\"qrcode\": \"https://www.homologacao.nfce.fazenda.sp.gov.br/", "p=" + std::string(nfce_key) + "|2|2|1|",
          "nfce-sp-nfeProc.xml"}},
        {"NF-e, through its receipt", {"emitir", nfe}, 0, {"\"recibo\": \"", "\"cStat\": 100", "nfe-sp-nfeProc.xml"}},
        {"the same NFC-e again", with({"emitir", nfce}, qr), 1, {"\"situacao\": \"recusada\"", "nfce-sp-assinado.xml"}},
        {"query of an authorized key", {"consultar", nfce_key}, 0, {"\"cStat\": 100", "\"protocolo\": \""}},
        {"query of an unknown key",
         {"consultar", "35240912345678000195650010000000991102938490"},
         1,
         {"\"cStat\": 217"}},
        {"receipt unknown", {"recibo", "351000000000999", "--uf", "SP"}, 1, {"\"cStat\": 106"}},
        {"receipt of the NF-e",
         {"recibo", "351000000000001", "--uf", "SP"},
         0,
         {"\"cStat\": 104", std::string("\"chave\": \"") + nfe_key}},
        {"cancellation from the nfeProc",
         {"cancelar", nfce_proc, "--justificativa", "Venda desfeita a pedido do cliente", "--saida",
          (folder / "cancelamento.xml").string()},
         0,
         {"\"cStat\": 135", "procEventoNFe"}},
        {"the cancelled NFC-e", {"consultar", nfce_key}, 0, {"\"cStat\": 101", "\"eventos\": 1"}},
        {"cancellation of an unknown note",
         {"cancelar", "35240912345678000195650010000000991102938490", "--protocolo", "135240000000001",
          "--justificativa", "Venda desfeita a pedido do cliente"},
         1,
         {"\"cStat\": "}},
        {"correction letter by key",
         {"cce", nfe_key, "--correcao", "Corrige o complemento do endereco do destinatario", "--saida",
          (folder / "cce.xml").string()},
         0,
         {"\"cStat\": 135"}},
        {"disablement",
         {"inutilizar", "--uf", "SP", "--modelo", "65", "--serie", "1", "--de", "5", "--ate", "9", "--ano", "24",
          "--justificativa", "Numeros pulados por falha no caixa", "--saida", (folder / "inutilizacao.xml").string()},
         0,
         {"\"cStat\": 102", "\"protocolo\": \""}},
        {"the same range again",
         {"inutilizar", "--uf", "SP", "--modelo", "65", "--serie", "1", "--de", "7", "--ate", "8", "--ano", "24",
          "--justificativa", "Numeros pulados por falha no caixa"},
         1,
         {"\"cStat\": 563"}},
        {"GTIN of the catalogue", {"gtin", "7891234567895"}, 0, {"\"cStat\": 9490", "\"NCM\": \"85161000\""}},
        {"GTIN outside it", {"gtin", "7890000000007"}, 1, {"\"cStat\": 9494"}},
    };
    for (step const& each : steps) {
        SCOPED_TRACE(each.what);
        tarn_run const run = run_tarn(with(sefaz.command(each.words), {"--json"}), csc);
        EXPECT_EQ(run.status, each.status) << run.both();
        for (std::string const& fragment : each.said) {
            EXPECT_NE(run.output.find(fragment), std::string::npos) << fragment << " not in\n" << run.both();
        }
        EXPECT_EQ(run.both().find(csc.front().second), std::string::npos) << "the CSC was printed";
    }

    for (char const* written : {"nfce-sp-nfeProc.xml", "nfe-sp-nfeProc.xml", "nfce-sp-assinado.xml", "cancelamento.xml",
                                "cce.xml", "inutilizacao.xml"}) {
        std::filesystem::path const file = folder / written;
        ASSERT_TRUE(std::filesystem::exists(file)) << written;
        validar_findings const found = validar_findings::of(file, csc);
        EXPECT_EQ(found.status, 0) << found.text;
        expect_agreement(file);
    }
    EXPECT_EQ(validar_findings::of(nfce_proc, csc).result("qrcode"), "ok");
}

TEST(tarn_program, the_bundled_simulator_for_one_run_and_kept_up)
{
    tarn_run const once = run_tarn({"status", "--uf", "SP", "--sim", "--json"});
    EXPECT_EQ(once.status, 0) << once.both();
    EXPECT_NE(once.output.find("\"cStat\": 107"), std::string::npos) << once.both();

    // Kept up by `tarn simulador`, it remembers across runs what it authorized.
    std::filesystem::path const folder = scratch_dir("tarn-simulador");
    std::string const kept = (folder / "simulador").string();
    tarn_in_background simulator({"simulador", "--pasta", kept});
    for (int wait = 0; wait < 100 && !std::filesystem::exists(folder / "simulador" / "endereco"); ++wait) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    std::filesystem::copy_file(tarn_note("nfce-sp.json"), folder / "nfce-sp.json");
    tarn_run const issued = run_tarn({"emitir", (folder / "nfce-sp.json").string(), "--sim-pasta", kept});
    EXPECT_EQ(issued.status, 0) << issued.both();
    tarn_run const queried = run_tarn({"consultar", nfce_key, "--sim-pasta", kept, "--json"});
    EXPECT_EQ(queried.status, 0) << queried.both();
    EXPECT_NE(queried.output.find("\"cStat\": 100"), std::string::npos) << queried.both();
    EXPECT_EQ(simulator.stop(), 0);
    tarn_run const gone = run_tarn({"status", "--uf", "SP", "--sim-pasta", kept});
    EXPECT_EQ(gone.status, 3) << "nobody answers at the folder's address once it stopped\n" << gone.both();
}

TEST(tarn_program, a_batch_in_parallel_with_its_summary)
{
    std::filesystem::path const folder = scratch_dir("tarn-batch");
    tarn_authority const sefaz(folder);
    // Five notes of their own numbers and keys, and the first one twice.
    std::string const note = read_text(tarn_note("nfce-sp.json"));
    std::vector<std::string> words = {"emitir",
                                      "--jobs",
                                      "2",
                                      "--token",
                                      "1",
                                      "--url-chave",
                                      "https://www.homologacao.nfce.fazenda.sp.gov.br/consulta",
                                      "--json"};
    for (int number = 11; number <= 15; ++number) {
        std::string const key = nfce_key_of(number);
        std::string text = note;
        text.replace(text.find("\"numero\": 3,"), 12, "\"numero\": " + std::to_string(number) + ",");
        text.replace(text.find(nfce_key), 44, key);
        std::filesystem::path const file = folder / ("nota-" + std::to_string(number) + ".json");
        write_text(file, text);
        words.push_back(file.string());
    }
    words.push_back(words.back());
    tarn_run const refused = run_tarn(sefaz.command(words), {{"TARN_CSC", "CSC0123456789ABCDEF0123456789AB"}});
    EXPECT_EQ(refused.status, 1) << "one note refused makes the batch's status\n" << refused.both();
    for (char const* fragment : {"\"notas\": 6", "\"autorizadas\": 5", "\"recusadas\": 1", "\"falhas\": 0",
                                 "\"jobs\": 2", "\"notas_por_segundo\": ", "\"aquecido\": {"}) {
        EXPECT_NE(refused.output.find(fragment), std::string::npos) << fragment << " not in\n" << refused.both();
    }

    // A note that is no note weighs more than a refusal.
    write_text(folder / "nota-ruim.json", "{\"modelo_emissao\": 65}");
    words.resize(words.size() - 6);
    words.push_back((folder / "nota-11.json").string());
    words.push_back((folder / "nota-ruim.json").string());
    tarn_run const bad = run_tarn(sefaz.command(words), {{"TARN_CSC", "CSC0123456789ABCDEF0123456789AB"}});
    EXPECT_EQ(bad.status, 2) << bad.both();
    for (char const* fragment : {"\"notas\": 2", "\"recusadas\": 1", "\"falhas\": 1", "tarn-nfe-nota-json"}) {
        EXPECT_NE(bad.output.find(fragment), std::string::npos) << fragment << " not in\n" << bad.both();
    }
}

}  // namespace
