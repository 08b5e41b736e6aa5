#include <velk/erp/tarn/nfe/qrcode/adicionar_url_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_100.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_200.hpp>
#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>

#include "../sefaz_data/requisicao/documento_fiscal_teste.hpp"

#include <support/files.hpp>
#include <support/nfce_texto.hpp>
#include <support/qrcode_esperado.hpp>

#include <gtest/gtest.h>

#include <openssl/crypto.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
using nfe::informacoes_adicionais;
using nfe::processo_gerar_qrcode_result_category;
using nfe::versao_qrcode;
using nfe::sefaz_data::requisicao::documento_fiscal;
using velk::core::result::stack;
using velk::test::documento_de_texto;
using velk::test::nfce_campos;
using velk::test::parse_or_fail;
using dest = std::pair<std::string, std::string>;

// The layout's shortest and longest urlChave.
constexpr char url_chave_curta[] = "http://www.sefaz.br/c";
std::string const outra_url_chave = "http://www.fazenda.gov.br/" + std::string(59, 'y');
using arguments = std::vector<std::pair<std::string, std::string>>;

struct corpus_case {
    char const* name;
    nfce_campos fields;
    char const* token;          // as the taxpayer holds it
    char const* token_200;      // as version 2.00 writes it
    char const* csc;
    char const* page;
};

std::vector<corpus_case> const corpus = {
    {"online, homologation, no consumer, token with zeros", {.cuf = 35, .tp_amb = 2}, "000001", "1",
     "8DC7D1F3A0B94E6C9F2A41D07E5B3C18A6F0", "https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?"},
    {"online, homologation, CPF", {.destinatario = dest{"CPF", "12345678909"}}, "123456", "123456",
     "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C", "http://consulta.teste/qrcode?"},
    {"online, production, CNPJ, one zero", {.cuf = 41, .tp_amb = 1, .destinatario = dest{"CNPJ", "11222333000181"}},
     "012345", "12345", "F00DFACE1234567890ABCDEF1234567890AB", "http://www.fazenda.pr.gov.br/nfce/qrcode?"},
    {"offline, homologation, no consumer, token with inner zeros", {.cuf = 41, .contingencia_offline = true}, "010200",
     "10200", "5E2A9C7B1D4F6083A2C5E7B9D1F3A5C7E9B1", ""},
    {"offline, production, foreigner, day 09",
     {.cuf = 43, .tp_amb = 1, .contingencia_offline = true, .dh_emi = "2024-11-09T07:05:00-03:00",
      .destinatario = dest{"idEstrangeiro", "AB1234567"}, .vnf = "1234.56", .vicms = "12.34"},
     "000123", "123", "ZYXWVUTSRQPONMLKJIHGFEDCBA9876543210", "https://www.sefaz.rs.gov.br/NFCE/NFCE-COM.aspx?"},
    {"offline, homologation, CPF, last day, Noronha",
     {.cuf = 26, .contingencia_offline = true, .dh_emi = "2024-12-31T23:59:59-02:00",
      .destinatario = dest{"CPF", "98765432100"}, .vnf = "0.50", .vicms = "0.09"},
     "900000", "900000", "csc-em-minusculas-0123456789abcdefghi",
     "http://app.sefaz.es.gov.br/ConsultaNFCe/qrcode.aspx?"},
    {"online, production, CPF, token of one digit", {.tp_amb = 1, .destinatario = dest{"CPF", "52998224725"}},
     "000009", "9", "1234", "x?"},
};

TEST(obter_url_qrcode, corpus_gives_the_published_formula_in_both_versions)
{
    for (corpus_case const& current : corpus) {
        SCOPED_TRACE(current.name);
        velk::test::nfce_teste const nfce = velk::test::nfce_texto(current.fields);
        std::string const digest = documento_de_texto(nfce.texto).get_digest_value();
        ASSERT_EQ(digest.size(), 28U);
        velk::test::qrcode_entrada const entrada = velk::test::entrada_qrcode(current.fields, nfce, digest);

        stack s;
        std::string const url_100 = nfe::obter_url_qrcode(
            informacoes_adicionais(versao_qrcode::versao_100, std::nullopt, current.page), parse_or_fail(nfce.texto),
            current.token, current.csc, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(url_100, current.page + velk::test::qrcode_esperado_100(entrada, current.token, current.csc));

        std::string const url_200 = nfe::obter_url_qrcode(
            informacoes_adicionais(versao_qrcode::versao_200, std::string("ignored"), current.page),
            parse_or_fail(nfce.texto), current.token, current.csc, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(url_200, current.page + velk::test::qrcode_esperado_200(entrada, current.token_200, current.csc));

        // Neither form names the consumer in version 2.00, nor the digest online.
        EXPECT_EQ(url_200.find("cDest"), std::string::npos);
        EXPECT_EQ(url_100.find("&cDest=") != std::string::npos, current.fields.destinatario.has_value());
        EXPECT_EQ(url_200.find(velk::test::hex_minusculo(digest)) != std::string::npos,
                  current.fields.contingencia_offline);
    }
}

TEST(obter_url_qrcode, a_qrcode_in_the_document_wins_over_every_argument)
{
    std::string text = velk::test::nfce_texto(nfce_campos{}).texto;
    text.replace(text.find("</NFe>"), 6,
                 "<infNFeSupl><qrCode><![CDATA[http://antigo?chNFe=1&a=b]]></qrCode></infNFeSupl></NFe>");
    for (versao_qrcode const version : {versao_qrcode::versao_100, versao_qrcode::versao_200,
                                        static_cast<versao_qrcode>(9)}) {
        stack s;
        EXPECT_EQ(nfe::obter_url_qrcode(informacoes_adicionais(version, std::nullopt, "http://novo?"),
                                        parse_or_fail(text), "12", "", s),
                  "http://antigo?chNFe=1&a=b");
        EXPECT_FALSE(s.has_failed()) << s.to_string();
    }
}

struct failure_case {
    char const* name;
    versao_qrcode version;
    bool offline;
    std::string token;
    char const* csc;
    int code;
    arguments expected;
};

// The checks run in the order the string is built: the token before the CSC.
TEST(obter_url_qrcode, refuses_tokens_and_csc_by_the_rules_of_each_version)
{
    using enum versao_qrcode;
    char const* const csc = "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C";
    failure_case const cases[] = {
        {"1.00, 5 characters", versao_100, false, "12345", csc, 3, {{"value", "12345"}}},
        {"1.00, 7 characters", versao_100, true, "1234567", csc, 3, {{"value", "1234567"}}},
        {"1.00, 5 zeros are not stripped", versao_100, false, "00000", csc, 3, {{"value", "00000"}}},
        {"2.00, 7 characters", versao_200, false, "1234567", csc, 3, {{"value", "1234567"}}},
        {"2.00, empty token", versao_200, true, "", csc, 3, {{"value", ""}}},
        {"2.00, 7 zeros stay 7", versao_200, false, "0000000", csc, 3, {{"value", "0000000"}}},
        {"2.00, 6 zeros: no CSC has that number", versao_200, true, "000000", csc, 3, {{"value", "000000"}}},
        {"2.00, two zeros (\"0\" alone is a token)", versao_200, false, "00", csc, 3, {{"value", "00"}}},
        {"1.00, a letter", versao_100, false, "12345A", csc, 3, {{"value", "12345A"}}},
        {"1.00, a carriage return", versao_100, false, "12345\r", csc, 3, {{"value", "12345\r"}}},
        {"2.00, a letter", versao_200, false, "0012a", csc, 3, {{"value", "12a"}}},
        {"2.00, a NUL", versao_200, true, std::string("12\0", 3), csc, 3, {{"value", std::string("12\0", 3)}}},
        {"2.00, 7 digits behind zeros", versao_200, false, "0001234567", csc, 3, {{"value", "1234567"}}},
        {"1.00, empty CSC", versao_100, false, "000001", "", 2, {{"value", ""}}},
        {"2.00, empty CSC", versao_200, true, "000001", "", 2, {{"value", ""}}},
        {"2.00, bad token and empty CSC", versao_200, false, "1234567", "", 3, {{"value", "1234567"}}},
        {"unknown version", static_cast<versao_qrcode>(2), false, "000001", csc, 4, {{"value", "2"}}},
    };
    for (failure_case const& current : cases) {
        SCOPED_TRACE(current.name);
        nfce_campos const fields{.contingencia_offline = current.offline};
        stack s;
        std::string const url =
            nfe::obter_url_qrcode(informacoes_adicionais(current.version, std::nullopt, "http://pagina?"),
                                  parse_or_fail(velk::test::nfce_texto(fields).texto), current.token, current.csc, s);
        if (s.size() != 1U) {
            ADD_FAILURE() << "one report expected: " << s.to_string();
            continue;
        }
        EXPECT_TRUE(s.get_category() == processo_gerar_qrcode_result_category::instance());
        EXPECT_EQ(s.get_value(), current.code);
        EXPECT_EQ(s.top().get_arguments(), current.expected);
        // The page alone after a generator's failure; nothing for a version
        // that has no generator.
        EXPECT_EQ(url, current.code == 4 ? "" : "http://pagina?");
    }

    // 5 characters are short for 1.00 but good for 2.00.
    stack s;
    std::string const url = nfe::obter_url_qrcode(informacoes_adicionais(versao_200, std::nullopt, ""),
                                                  parse_or_fail(velk::test::nfce_texto({}).texto), "12345", csc, s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_NE(url.find("|12345|"), std::string::npos) << url;
}

// What the QR string holds goes into the CDATA section of qrCode, and must
// read back the same and fit the layout's pattern: a page, a consumer's
// identifier or an amount that could not is refused with code 8, naming the
// version and the field. A refused page gives no text at all; the others
// leave the page alone, as every failure of a generator does.
TEST(obter_url_qrcode, refuses_what_the_qrcode_cannot_carry)
{
    using enum versao_qrcode;
    char const* const csc = "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C";
    std::string const page = "http://pagina?";
    struct {
        char const* name;
        versao_qrcode version;
        nfce_campos fields;
        std::string page;
        char const* field;  // null: accepted
    } const cases[] = {
        {"page with a carriage return", versao_100, {}, "http://pagina\r?", "url_qrcode"},
        {"page with a NUL", versao_200, {}, std::string("http://pa\0gina?", 15), "url_qrcode"},
        {"page with an escape", versao_200, {}, "http://pagina\x1B?", "url_qrcode"},
        {"page in Latin-1", versao_100, {}, "http://p\xE1gina?", "url_qrcode"},
        {"page with an overlong slash", versao_200, {}, "http:\xC0\xAF/pagina?", "url_qrcode"},
        {"page with a surrogate", versao_200, {}, "http://p\xED\xA0\x80gina?", "url_qrcode"},
        {"page cut inside a character", versao_100, {}, "http://p\xC3", "url_qrcode"},
        {"page that would end the section", versao_100, {}, "http://pagina?]]>", "url_qrcode"},
        {"page with accents", versao_200, {}, "http://p\xC3\xA1gina/a\xC3\xA7\xC3\xA3o?", nullptr},
        {"foreigner with a carriage return", versao_100, {.destinatario = dest{"idEstrangeiro", "AB12&#13;345"}}, page,
         "identificador_destinatario"},
        {"foreigner with a sign the QR code has not", versao_100,
         {.destinatario = dest{"idEstrangeiro", "AB#12345"}}, page, "identificador_destinatario"},
        {"foreigner of 4 characters", versao_100, {.destinatario = dest{"idEstrangeiro", "AB12"}}, page,
         "identificador_destinatario"},
        {"the same foreigner is not shown in 2.00", versao_200, {.destinatario = dest{"idEstrangeiro", "AB#12345"}},
         page, nullptr},
        {"total of one place", versao_100, {.vnf = "37.8"}, page, "valor_total"},
        {"ICMS with a carriage return", versao_100, {.vicms = "0.00&#13;"}, page, "valor_icms"},
        {"offline total with zeros in front", versao_200, {.contingencia_offline = true, .vnf = "037.80"}, page,
         "valor_total"},
        {"online total is not shown in 2.00", versao_200, {.vnf = "37.8"}, page, nullptr},
    };
    for (auto const& current : cases) {
        SCOPED_TRACE(current.name);
        stack s;
        std::string const url =
            nfe::obter_url_qrcode(informacoes_adicionais(current.version, std::nullopt, current.page),
                                  parse_or_fail(velk::test::nfce_texto(current.fields).texto), "000001", csc, s);
        if (current.field == nullptr) {
            EXPECT_FALSE(s.has_failed()) << s.to_string();
            EXPECT_EQ(url.rfind(current.page, 0), 0U) << url;
            EXPECT_GT(url.size(), current.page.size());
            continue;
        }
        if (s.size() != 1U) {
            ADD_FAILURE() << "one report expected: " << s.to_string();
            continue;
        }
        EXPECT_TRUE(s.get_category() == processo_gerar_qrcode_result_category::instance());
        EXPECT_EQ(s.get_value(), 8);
        EXPECT_EQ(s.top().get_arguments(),
                  (arguments{{"url-version", current.version == versao_100 ? "1.00" : "2.00"},
                             {"url-field", current.field}}));
        EXPECT_EQ(url, std::string(current.field) == "url_qrcode" ? "" : current.page);
    }
}

// The generators on their own, with a digest that is not what the document
// holds: its length is looked at only where the string carries it.
TEST(qrcode_generators, refuse_a_digest_of_the_wrong_length_only_where_they_write_it)
{
    char const* const csc = "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C";
    documento_fiscal const online_document = documento_de_texto(velk::test::nfce_texto({}).texto);
    documento_fiscal const offline_document =
        documento_de_texto(velk::test::nfce_texto({.contingencia_offline = true}).texto);

    struct {
        char const* name;
        documento_fiscal const& document;
        bool version_200;
        std::string digest;
        bool refused;
    } const cases[] = {
        {"1.00 online, short digest", online_document, false, "abc", true},
        {"1.00 offline, empty digest", offline_document, false, "", true},
        {"2.00 offline, short digest", offline_document, true, "abc", true},
        {"2.00 online, short digest", online_document, true, "abc", false},
        {"1.00, 28 characters of any kind", online_document, false, std::string(28, '#'), false},
    };
    for (auto const& current : cases) {
        SCOPED_TRACE(current.name);
        stack s;
        std::string const qrcode =
            current.version_200 ? nfe::detail::gerar_qrcode_versao_200(current.document, current.digest, "1", csc, s)
                                : nfe::detail::gerar_qrcode_versao_100(current.document, current.digest, "000001",
                                                                       csc, s);
        if (!current.refused) {
            EXPECT_FALSE(s.has_failed()) << s.to_string();
            EXPECT_FALSE(qrcode.empty());
            continue;
        }
        EXPECT_EQ(qrcode, "");
        ASSERT_EQ(s.size(), 1U) << s.to_string();
        EXPECT_TRUE(s.get_category() == processo_gerar_qrcode_result_category::instance());
        EXPECT_EQ(s.get_value(), 7);
        EXPECT_EQ(s.top().get_arguments(),
                  (arguments{{"digest-value", velk::test::hex_minusculo(current.digest)},
                             {"description", "O tamanho do DigestValue deve ser igual a 56"}}));
    }
}

TEST(qrcode_generators, the_emission_type_is_that_of_the_key_not_of_ide)
{
    // ide says tpEmis 9, the key says 1: the online form.
    nfce_campos fields;
    velk::test::nfce_teste const nfce = velk::test::nfce_texto(fields);
    std::string text = nfce.texto;
    text.replace(text.find("<tpEmis>1</tpEmis>"), 18, "<tpEmis>9</tpEmis>");
    stack s;
    std::string const qrcode = nfe::detail::gerar_qrcode_versao_200(documento_de_texto(text), "", "7", "segredo", s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(qrcode, "p=" + nfce.chave + "|2|2|7|" + velk::test::sha1_maiusculo(nfce.chave + "|2|2|7segredo"));
}

// An OpenSSL that cannot take SHA-1 leaves the hash empty: code 6 with size 0.
// The child process reads a configuration that activates no digest at all.
TEST(qrcode_generators, a_hash_that_cannot_be_taken_is_code_6)
{
    OPENSSL_init_crypto(OPENSSL_INIT_LOAD_CONFIG, nullptr);  // this process keeps its own configuration
    std::filesystem::path const folder = velk::test::scratch_dir("qrcode_sem_sha1");
    velk::test::write_text(folder / "openssl.cnf", "openssl_conf = openssl_init\n"
                                                   "[openssl_init]\nproviders = provider_sect\n"
                                                   "[provider_sect]\nnull = null_sect\n"
                                                   "[null_sect]\nactivate = 1\n");
    std::string const text = velk::test::nfce_texto(nfce_campos{}).texto;
    char const* const former = std::getenv("OPENSSL_CONF");
    std::string const saved = former == nullptr ? "" : former;
    setenv("OPENSSL_CONF", (folder / "openssl.cnf").c_str(), 1);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto const generate = [&text](bool version_200) {
        documento_fiscal const document = documento_de_texto(text);
        std::string const digest(28, 'A');
        stack s;
        std::string const qrcode =
            version_200 ? nfe::detail::gerar_qrcode_versao_200(document, digest, "1", "csc", s)
                        : nfe::detail::gerar_qrcode_versao_100(document, digest, "000001", "csc", s);
        std::fprintf(stderr, "%s", s.to_string().c_str());
        std::exit(qrcode.empty() && s.size() == 1 && s.get_value() == 6 ? 0 : 1);
    };
    EXPECT_EXIT(generate(false), testing::ExitedWithCode(0),
                "tarn-nfe-processo-gerar-qrcode 6: A hash gerada para o QrCode está inválida \\{hash-value=, "
                "hash-size=0\\}");
    EXPECT_EXIT(generate(true), testing::ExitedWithCode(0), "hash-size=0");
    if (former == nullptr) {
        unsetenv("OPENSSL_CONF");
    } else {
        setenv("OPENSSL_CONF", saved.c_str(), 1);
    }
}

TEST(adicionar_url_qrcode, puts_the_supplement_after_infnfe_in_place_of_the_former_one)
{
    nfce_campos fields;
    velk::test::nfce_teste const nfce = velk::test::nfce_texto(fields);
    velk::xml::document document = parse_or_fail(nfce.texto);
    informacoes_adicionais const informacoes(versao_qrcode::versao_100, std::string(url_chave_curta), "http://p?");
    stack s;
    // A failure leaves the tree as it was.
    EXPECT_FALSE(nfe::adicionar_url_qrcode(informacoes, document, "000001", "", s));
    EXPECT_EQ(s.get_value(), 2);
    velk::xml::document without_root;
    EXPECT_FALSE(nfe::adicionar_url_qrcode(informacoes, without_root, "000001", "segredo", s));
    // The layout has no QR code without its urlChave, nor one a CDATA
    // section cannot carry, nor one the layout's 21 to 85 characters refuse.
    for (auto const& url_chave :
         {std::optional<std::string>(), std::optional<std::string>("http://www.fazenda.br/cha\rve"),
          std::optional<std::string>("http://a.gov.br/nfce"), std::optional<std::string>(" http://www.fazenda.gov.br/nfce"),
          std::optional<std::string>("http://www.fazenda.gov.br/nfce/\u20ac"),
          std::optional<std::string>("http://www.fazenda.gov.br/" + std::string(60, 'x'))}) {
        s.reset();
        informacoes_adicionais const sem_chave(versao_qrcode::versao_100, url_chave, "http://p?");
        EXPECT_FALSE(nfe::adicionar_url_qrcode(sem_chave, document, "000001", "segredo", s));
        ASSERT_EQ(s.size(), 1U) << s.to_string();
        EXPECT_EQ(s.get_value(), 8);
        EXPECT_EQ(s.top().get_arguments(), (arguments{{"url-version", "1.00"}, {"url-field", "url_chave"}}));
    }
    EXPECT_EQ(document.get_root_element()->find_child("infNFeSupl"), nullptr);

    s.reset();
    ASSERT_TRUE(nfe::adicionar_url_qrcode(informacoes, document, "000001", "segredo", s)) << s.to_string();
    std::string const digest = documento_de_texto(nfce.texto).get_digest_value();
    std::string const expected = "</infNFe><infNFeSupl><qrCode><![CDATA[http://p?" +
                                 velk::test::qrcode_esperado_100(velk::test::entrada_qrcode(fields, nfce, digest),
                                                                 "000001", "segredo") +
                                 "]]></qrCode><urlChave><![CDATA[" + std::string(url_chave_curta) + "]]></urlChave></infNFeSupl></NFe>";
    std::string const saved = velk::xml::document::save(document, s).to_string();
    EXPECT_NE(saved.find(expected), std::string::npos) << saved;

    // Again, with another urlChave: the QR code the document holds stays, the
    // supplement is still one.
    informacoes_adicionais const outra(versao_qrcode::versao_200, std::string(outra_url_chave), "http://q?");
    ASSERT_TRUE(nfe::adicionar_url_qrcode(outra, document, "000001", "other", s)) << s.to_string();
    std::string const again = velk::xml::document::save(document, s).to_string();
    std::string const replaced = expected.substr(0, expected.find("<urlChave>")) +
                                 "<urlChave><![CDATA[" + std::string(outra_url_chave) + "]]></urlChave></infNFeSupl></NFe>";
    EXPECT_NE(again.find(replaced), std::string::npos) << again;
}

}  // namespace
