// tarn validar on a good NFC-e and on broken ones: what it finds, its exit
// status, and that xmllint and xmlsec1 say the same of each file.
#include "tarn_authority.hpp"
#include "tarn_process.hpp"
#include "validar_findings.hpp"

#include <support/files.hpp>
#include <support/test_certificates.hpp>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace velk::test;

constexpr char csc[] = "CSC0123456789ABCDEF0123456789AB";
constexpr char key[] = "35240912345678000195650010000000031102938497";

// Makes an NFC-e the way tarn's first steps do: gerar, qrcode, assinar;
// `before_signing` may change the unsigned text.
class document_maker {
public:
    explicit document_maker(std::filesystem::path folder) : folder_(std::move(folder))
    {
        write_text(folder_ / "cert.pfx", test_certificates::instance().pkcs12().to_string());
        write_text(folder_ / "senha", test_certificates::instance().password());
    }

    std::filesystem::path make(std::string const& name, std::string const& note,
                               std::function<void(std::string&)> const& before_signing = {}) const
    {
        std::filesystem::path const json = folder_ / (name + ".json");
        std::filesystem::path const generated = folder_ / (name + ".xml");
        std::filesystem::path const with_qrcode = folder_ / (name + "-qr.xml");
        std::filesystem::path const signed_file = folder_ / (name + "-assinado.xml");
        if (!before_signing && std::filesystem::exists(signed_file) && read_text(json) == note) {
            return signed_file;
        }
        write_text(json, note);
        expect_ok(run_tarn({"gerar", json.string(), "--saida", generated.string()}));
        expect_ok(run_tarn({"qrcode", generated.string(), "--token", "7", "--url-chave",
                            "https://www.homologacao.nfce.fazenda.sp.gov.br/consulta", "--saida", with_qrcode.string()},
                           {{"TARN_CSC", csc}}));
        if (before_signing) {
            std::string text = read_text(with_qrcode);
            before_signing(text);
            write_text(with_qrcode, text);
        }
        expect_ok(run_tarn({"assinar", with_qrcode.string(), "--pfx", (folder_ / "cert.pfx").string(),
                            "--senha-arquivo", (folder_ / "senha").string(), "--saida", signed_file.string()}));
        return signed_file;
    }

private:
    static void expect_ok(tarn_run const& run) { ASSERT_EQ(run.status, 0) << run.both(); }

    std::filesystem::path folder_;
};

void replace(std::string& text, std::string const& from, std::string const& to)
{
    std::size_t const at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
}

struct broken_case {
    char const* what;
    std::function<std::filesystem::path(document_maker const&, std::string const&)> make;
    int status;
    std::map<std::string, std::string> results;  // check: "ok", "FALHOU", "não conferido"
    char const* csc;
};

TEST(validar_command, good_and_broken_documents)
{
    std::filesystem::path const folder = scratch_dir("tarn-validar");
    document_maker const maker(folder);
    std::string const note = read_text(tarn_note("nfce-sp.json"));
    std::string wrong_digit_key = key;
    wrong_digit_key.back() = '3';

    broken_case const cases[] = {
        {"good",
         [](document_maker const& m, std::string const& n) { return m.make("good", n); },
         0,
         {{"esquema", "ok"}, {"assinatura", "ok"}, {"chave", "ok"}, {"campos da chave", "ok"}, {"qrcode", "ok"}},
         csc},
        {"good, no CSC given",
         [](document_maker const& m, std::string const& n) { return m.make("good", n); },
         0,
         {{"assinatura", "ok"}, {"qrcode", "não conferido"}},
         nullptr},
        {"good, another CSC",
         [](document_maker const& m, std::string const& n) { return m.make("good", n); },
         1,
         {{"assinatura", "ok"}, {"qrcode", "FALHOU"}},
         "OUTROCSC0123456789ABCDEF012345"},
        {"a byte changed after signing",
         [](document_maker const& m, std::string const& n) {
             std::filesystem::path const file = m.make("changed", n);
             std::string text = read_text(file);
             replace(text, "CHALEIRA ELETRICA", "CHALEIRA ELETRICO");
             write_text(file, text);
             return file;
         },
         1,
         {{"esquema", "ok"}, {"assinatura", "FALHOU"}, {"chave", "ok"}},
         csc},
        {"a wrong check digit in the key",
         [&](document_maker const& m, std::string const& n) {
             std::string text = n;
             replace(text, key, wrong_digit_key);
             return m.make("digit", text);
         },
         1,
         {{"esquema", "ok"}, {"assinatura", "ok"}, {"chave", "FALHOU"}},
         csc},
        {"a schema error, signed",
         [](document_maker const& m, std::string const& n) {
             return m.make("schema", n,
                           [](std::string& text) { replace(text, "<CFOP>5102</CFOP>", "<CFOP>51O2</CFOP>"); });
         },
         1,
         {{"esquema", "FALHOU"}, {"assinatura", "ok"}, {"chave", "ok"}},
         csc},
    };
    for (broken_case const& each : cases) {
        SCOPED_TRACE(each.what);
        std::filesystem::path const file = each.make(maker, note);
        std::vector<std::pair<std::string, std::string>> environment;
        if (each.csc != nullptr) {
            environment.emplace_back("TARN_CSC", each.csc);
        }
        validar_findings const found = validar_findings::of(file, environment);
        EXPECT_EQ(found.status, each.status) << found.text;
        EXPECT_NE(found.type.find("modelo 65"), std::string::npos) << found.text;
        for (auto const& [check, result] : each.results) {
            EXPECT_EQ(found.result(check), result) << check << "\n" << found.text;
        }
        expect_agreement(file);
    }
}

TEST(validar_command, what_is_no_message)
{
    std::filesystem::path const folder = scratch_dir("tarn-validar-input");
    struct row {
        char const* what;
        char const* text;
        char const* said;
    } const rows[] = {
        {"not XML", "isto não é XML", "leitura do XML"},
        {"another root", "<pedido xmlns=\"http://www.portalfiscal.inf.br/nfe\"/>", "não é uma mensagem de NF-e"},
        {"another namespace", "<NFe xmlns=\"urn:outro\"/>", "não é uma mensagem de NF-e"},
        {"a DTD with an entity",
         "<!DOCTYPE NFe [<!ENTITY x \"y\">]><NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\">&x;</NFe>",
         "leitura do XML"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.what);
        write_text(folder / "input.xml", each.text);
        tarn_run const run = run_tarn({"validar", (folder / "input.xml").string(), "--json"});
        EXPECT_EQ(run.status, 2) << run.both();
        EXPECT_NE(run.output.find(each.said), std::string::npos) << run.both();
    }
    tarn_run const missing = run_tarn({"validar", (folder / "ausente.xml").string()});
    EXPECT_EQ(missing.status, 2) << missing.both();
}

}  // namespace
