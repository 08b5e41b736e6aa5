// How tarn answers its caller before any authority is involved: the help of
// each subcommand, bad usage, a call that does not go through, and secrets
// that never reach the output.
#include "tarn_authority.hpp"
#include "tarn_process.hpp"

#include <support/files.hpp>
#include <support/test_certificates.hpp>

#include <gtest/gtest.h>

namespace {

using namespace velk::test;

constexpr char const* subcommands[] = {"emitir", "gerar",    "qrcode", "assinar",    "validar", "status",   "consultar",
                                       "recibo", "cancelar", "cce",    "inutilizar", "gtin",    "simulador"};

TEST(tarn_usage, help_of_every_subcommand)
{
    tarn_run const general = run_tarn({"--help"});
    EXPECT_EQ(general.status, 0);
    for (char const* name : subcommands) {
        SCOPED_TRACE(name);
        EXPECT_NE(general.output.find(std::string("  ") + name + " "), std::string::npos) << "listed";
        tarn_run const help = run_tarn({name, "--help"});
        EXPECT_EQ(help.status, 0) << help.both();
        EXPECT_EQ(help.output.rfind(std::string("uso: tarn ") + name + " ", 0), 0u) << help.output;
        EXPECT_NE(help.output.find("  --json"), std::string::npos);
        if (std::string(name) != "simulador") {
            EXPECT_NE(help.output.find("Saída: "), std::string::npos) << "the exit statuses are told";
        }
    }
}

TEST(tarn_usage, exit_statuses_of_bad_usage_and_transport)
{
    std::filesystem::path const folder = scratch_dir("tarn-usage");
    write_text(folder / "cert.pfx", test_certificates::instance().pkcs12().to_string());
    write_text(folder / "senha", test_certificates::instance().password() + "\n");
    write_text(folder / "errada", "segredo-que-nao-abre\n");
    write_text(folder / "nota.json", "{\"numero\": \"tres\"}");
    std::string const pfx = (folder / "cert.pfx").string();
    std::string const closed = "https://127.0.0.1:1/";
    std::string const nfce = (folder / "nfce.xml").string();
    std::string const nfe = (folder / "nfe.xml").string();
    ASSERT_EQ(run_tarn({"gerar", tarn_note("nfce-sp.json").string(), "--saida", nfce}).status, 0);
    ASSERT_EQ(run_tarn({"gerar", tarn_note("nfe-sp.json").string(), "--saida", nfe}).status, 0);
    struct row {
        char const* what;
        std::vector<std::string> words;
        int status;
        char const* said;  // in the output or the errors
    } const rows[] = {
        {"nothing", {}, 2, "uso: tarn"},
        {"unknown subcommand", {"emitirr"}, 2, "subcomando desconhecido: emitirr"},
        {"unknown option", {"status", "--uf", "SP", "--senha", "x"}, 2, "opção desconhecida: --senha"},
        {"a flag with a value", {"status", "--sim=1"}, 2, "não leva valor"},
        {"a missing value", {"status", "--uf"}, 2, "falta o valor de --uf"},
        {"a missing argument", {"consultar"}, 2, "argumentos: CHAVE"},
        {"too many arguments", {"gerar", "a.json", "b.json"}, 2, "argumentos:"},
        {"no state", {"status", "--endpoint", closed}, 2, "informe --uf"},
        {"no such state", {"status", "--uf", "XX"}, 2, "não é uma UF"},
        {"a key of 43 digits", {"consultar", "3524091234567800019565001000000003110293849"}, 2, "44 dígitos"},
        {"an environment out of its choices",
         {"status", "--uf", "SP", "--ambiente", "teste"},
         2,
         "use homologacao, producao"},
        {"no certificate", {"status", "--uf", "SP"}, 2, "informe --pfx"},
        {"no password", {"status", "--uf", "SP", "--pfx", pfx}, 2, "TARN_PFX_SENHA"},
        {"a wrong password",
         {"status", "--uf", "SP", "--pfx", pfx, "--senha-arquivo", (folder / "errada").string()},
         2,
         "velk-cryptography"},
        {"a note that is no note", {"gerar", (folder / "nota.json").string()}, 2, "tarn-nfe-nota-json"},
        {"a QR code without CSC", {"qrcode", nfce, "--token", "1"}, 2, "TARN_CSC"},
        {"a QR code of an NF-e", {"qrcode", nfe, "--token", "1"}, 2, "não é uma NFC-e"},
        {"nobody listening",
         {"status", "--uf", "SP", "--endpoint", closed, "--pfx", pfx, "--senha-arquivo", (folder / "senha").string()},
         3,
         "tarn-detail-soap-curl"},
        {"no time to wait", {"status", "--uf", "SP", "--tempo-limite", "0"}, 2, "use um número de 1 a 3600"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.what);
        tarn_run const run = run_tarn(each.words);
        EXPECT_EQ(run.status, each.status) << run.both();
        EXPECT_NE(run.both().find(each.said), std::string::npos) << run.both();
        EXPECT_EQ(run.both().find("segredo-que-nao-abre"), std::string::npos) << "the password was printed";
        EXPECT_EQ(run.both().find(test_certificates::instance().password()), std::string::npos)
            << "the password was printed";
    }
}

TEST(tarn_usage, the_password_comes_from_the_environment_too)
{
    std::filesystem::path const folder = scratch_dir("tarn-usage-environment");
    write_text(folder / "cert.pfx", test_certificates::instance().pkcs12().to_string());
    std::string const note = (folder / "nota.json").string();
    std::filesystem::copy_file(tarn_note("nfe-sp.json"), note);
    ASSERT_EQ(run_tarn({"gerar", note}).status, 0);
    tarn_run const run = run_tarn({"assinar", (folder / "nota.xml").string(), "--pfx", (folder / "cert.pfx").string()},
                                  {{"TARN_PFX_SENHA", test_certificates::instance().password()}});
    EXPECT_EQ(run.status, 0) << run.both();
    EXPECT_TRUE(std::filesystem::exists(folder / "nota-assinado.xml"));
    EXPECT_EQ(run.both().find(test_certificates::instance().password()), std::string::npos);
}

}  // namespace
