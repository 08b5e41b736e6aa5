#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include "documento_fiscal_teste.hpp"

#include <support/files.hpp>
#include <support/nfce_texto.hpp>
#include <support/corpus_notas.hpp>
#include <support/qrcode_esperado.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xmlsec.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
using nfe::informacoes_adicionais;
using nfe::versao_qrcode;
using nfe::sefaz_data::requisicao::documento_fiscal;
using velk::core::result::stack;
using velk::test::child_element_names;
using velk::test::documento_de_texto;
using velk::test::saved_text;
using velk::test::taxpayer_pkcs12;

constexpr char csc[] = "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C";
constexpr char url_chave[] = "https://www.homologacao.nfce.fazenda.sp.gov.br/consulta";
constexpr char pagina[] = "https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?";

// The only child of a tag of infNFeSupl must be a CDATA section; its text.
std::string cdata_of(velk::xml::element const& nfe, char const* tag)
{
    velk::xml::element const* supplement = nfe.find_child("infNFeSupl");
    if (supplement == nullptr || supplement->find_child(tag) == nullptr) {
        return "(absent)";
    }
    velk::xml::element const& element = *supplement->find_child(tag);
    auto const children = element.get_node_range();
    if (std::distance(children.begin(), children.end()) != 1 || children.begin()->as_cdata_section() == nullptr) {
        return "(not one CDATA section)";
    }
    return children.begin()->as_cdata_section()->get_contents();
}

// What a signed NFC-e must pass: the layout's order of NFe's children, both
// supplement tags as CDATA, the official schema and an independent verifier;
// and the digest written in the QR code is the one the signature holds.
void expect_signed_nfce(documento_fiscal const& document, std::string const& expected_qrcode)
{
    velk::xml::element const nfe = document.get_xml();
    EXPECT_EQ(child_element_names(nfe), (std::vector<std::string>{"infNFe", "infNFeSupl", "Signature"}));
    EXPECT_EQ(child_element_names(*nfe.find_child("infNFeSupl")), (std::vector<std::string>{"qrCode", "urlChave"}));
    EXPECT_EQ(cdata_of(nfe, "qrCode"), expected_qrcode);
    EXPECT_EQ(cdata_of(nfe, "urlChave"), url_chave);

    std::string const text = saved_text(nfe);
    EXPECT_NE(text.find("<qrCode><![CDATA["), std::string::npos);
    EXPECT_NE(text.find("<urlChave><![CDATA["), std::string::npos);
    auto const problems =
        velk::test::validate_against_schema(velk::test::schema_dir() / "nfe_v4.00.xsd", velk::core::byte_array(text));
    EXPECT_TRUE(problems.empty()) << problems.front();
    auto const verified =
        velk::test::xmlsec_verify(text, velk::test::id_infnfe, velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;

    // Read back, the fields and the tree agree.
    documento_fiscal const again = documento_de_texto(text);
    EXPECT_EQ(again.get_qrcode_value().value_or("(absent)"), document.get_qrcode_value().value_or("(none)"));
    EXPECT_EQ(again.get_url_chave().value_or("(absent)"), document.get_url_chave().value_or("(none)"));
}

struct signing_case {
    char const* name;
    bool offline;
    versao_qrcode version;
    char const* token;
    char const* token_written;  // in version 2.00
    std::optional<std::pair<std::string, std::string>> consumer;
};

TEST(documento_fiscal_qrcode, a_signed_nfce_carries_the_qrcode_made_from_its_signature_digest)
{
    signing_case const cases[] = {
        {"1.00 online, no consumer", false, versao_qrcode::versao_100, "000001", "000001", std::nullopt},
        {"1.00 offline, CPF", true, versao_qrcode::versao_100, "123456", "123456",
         std::pair<std::string, std::string>{"CPF", "12345678909"}},
        {"2.00 online, CNPJ", false, versao_qrcode::versao_200, "000001", "1",
         std::pair<std::string, std::string>{"CNPJ", "11222333000181"}},
        {"2.00 offline, no consumer", true, versao_qrcode::versao_200, "012345", "12345", std::nullopt},
    };
    velk::cryptography::pkcs12 const& certificate = taxpayer_pkcs12();
    for (signing_case const& current : cases) {
        SCOPED_TRACE(current.name);
        velk::test::nfce_campos const fields{.contingencia_offline = current.offline, .destinatario = current.consumer};
        velk::test::nfce_teste const nfce = velk::test::nfce_texto(fields);
        documento_fiscal document = documento_de_texto(nfce.texto);

        informacoes_adicionais const informacoes(current.version, std::string(url_chave), pagina);
        stack s;
        document.gerar_qrcode(informacoes, current.token, csc, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        document.adicionar_url_chave(informacoes);
        std::string const digest_before = document.get_digest_value();
        document.assinar(certificate, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();

        // The QR code was made before the signature existed, from the digest
        // that the signature now holds.
        std::string const signed_digest =
            document.get_xml().find_child("Signature")->find_child("SignedInfo")->find_child("Reference")
                ->find_child("DigestValue")->get_contents();
        EXPECT_EQ(signed_digest, digest_before);
        velk::test::qrcode_entrada const entrada = velk::test::entrada_qrcode(fields, nfce, signed_digest);
        std::string const expected =
            pagina + (current.version == versao_qrcode::versao_100
                          ? velk::test::qrcode_esperado_100(entrada, current.token, csc)
                          : velk::test::qrcode_esperado_200(entrada, current.token_written, csc));
        expect_signed_nfce(document, expected);
    }
}

// Every NFC-e of the corpus, generated from its note, in both versions.
TEST(documento_fiscal_qrcode, generated_nfce_sign_and_validate_with_their_supplement)
{
    velk::cryptography::pkcs12 const& certificate = taxpayer_pkcs12();
    int nfce = 0;
    for (velk::test::nota_do_corpus const& nota : velk::test::corpus_notas()) {
        if (nota.criar().get_modelo_emissao() != "65") {
            continue;
        }
        ++nfce;
        for (versao_qrcode const version : {versao_qrcode::versao_100, versao_qrcode::versao_200}) {
            SCOPED_TRACE(nota.nome + (version == versao_qrcode::versao_100 ? " 1.00" : " 2.00"));
            stack s;
            documento_fiscal document =
                documento_fiscal::from_nota_fiscal(nota.criar(), nfe::versao::versao_4_00, s);
            ASSERT_FALSE(s.has_failed()) << s.to_string();
            informacoes_adicionais const informacoes(version, std::string(url_chave), pagina);
            // urlChave first: the QR code still goes ahead of it.
            document.adicionar_url_chave(informacoes);
            document.gerar_qrcode(informacoes, "000001", csc, s);
            document.assinar(certificate, s);
            ASSERT_FALSE(s.has_failed()) << s.to_string();

            velk::test::qrcode_entrada const entrada{
                velk::core::make_string(document.get_chave_acesso(), s),
                document.get_ambiente() == velk::erp::tarn::ambiente::producao ? 1 : 2,
                document.get_identificador_destinatario(),
                velk::core::make_string(document.get_data_hora_emissao(), s),
                document.get_valor_total(),
                document.get_valor_icms(),
                document.get_chave_acesso().get_tipo_emissao() ==
                    velk::erp::fiscal::tipo_emissao::contingencia_offline_nfce,
                document.get_digest_value()};
            expect_signed_nfce(document, pagina + (version == versao_qrcode::versao_100
                                                       ? velk::test::qrcode_esperado_100(entrada, "000001", csc)
                                                       : velk::test::qrcode_esperado_200(entrada, "1", csc)));
        }
    }
    EXPECT_GE(nfce, 2);
}

TEST(documento_fiscal_qrcode, the_first_qrcode_stays_and_a_failure_leaves_an_empty_supplement)
{
    velk::test::nfce_campos fields;
    documento_fiscal document = documento_de_texto(velk::test::nfce_texto(fields).texto);
    std::string const chave(url_chave);

    // Failures: the supplement is made, the values stay unset. The layout has
    // no QR code without its urlChave, nor a urlChave that does not read
    // back the same.
    struct {
        char const* name;
        informacoes_adicionais informacoes;
        char const* token;
        int code;
    } const failures[] = {
        {"short token", informacoes_adicionais(versao_qrcode::versao_100, chave, pagina), "12345", 3},
        {"no urlChave", informacoes_adicionais(versao_qrcode::versao_100, std::nullopt, pagina), "123456", 8},
        {"urlChave with a carriage return",
         informacoes_adicionais(versao_qrcode::versao_200, std::string("http://cha\rve"), pagina), "1", 8},
        {"urlChave with a control character",
         informacoes_adicionais(versao_qrcode::versao_200, std::string("http://cha\x7Fve\x01"), pagina), "1", 8},
    };
    for (auto const& failure : failures) {
        SCOPED_TRACE(failure.name);
        stack s;
        document.gerar_qrcode(failure.informacoes, failure.token, csc, s);
        EXPECT_EQ(s.size(), 1U) << s.to_string();
        EXPECT_EQ(s.has_failed() ? s.get_value() : 0, failure.code);
        EXPECT_FALSE(document.get_qrcode_value().has_value());
        EXPECT_FALSE(document.get_url_chave().has_value());
        ASSERT_NE(document.get_xml().find_child("infNFeSupl"), nullptr);
        EXPECT_TRUE(child_element_names(*document.get_xml().find_child("infNFeSupl")).empty());
    }

    stack s;
    document.gerar_qrcode(informacoes_adicionais(versao_qrcode::versao_200, chave, "http://primeira?"), "1", csc, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    std::string const first = *document.get_qrcode_value();
    EXPECT_EQ(first.rfind("http://primeira?p=", 0), 0U) << first;

    // Again, with other values and even a CSC that would fail: the text stays,
    // the urlChave is the new one.
    document.gerar_qrcode(informacoes_adicionais(versao_qrcode::versao_100, std::string("http://www.sefaz.br/outra"),
                                                 "http://segunda?"),
                          "999999", "", s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(*document.get_qrcode_value(), first);
    EXPECT_EQ(cdata_of(document.get_xml(), "qrCode"), first);
    EXPECT_EQ(cdata_of(document.get_xml(), "urlChave"), "http://www.sefaz.br/outra");
    EXPECT_EQ(*document.get_url_chave(), "http://www.sefaz.br/outra");
    EXPECT_EQ(child_element_names(*document.get_xml().find_child("infNFeSupl")),
              (std::vector<std::string>{"qrCode", "urlChave"}));
    EXPECT_EQ(child_element_names(document.get_xml()), (std::vector<std::string>{"infNFe", "infNFeSupl"}));
}

// A document signed before its QR code: the supplement goes between infNFe
// and the signature, which still holds, since it covers infNFe alone.
TEST(documento_fiscal_qrcode, a_supplement_made_after_signing_goes_before_the_signature)
{
    velk::test::nfce_campos const fields;
    velk::test::nfce_teste const nfce = velk::test::nfce_texto(fields);
    documento_fiscal document = documento_de_texto(nfce.texto);
    stack s;
    document.assinar(taxpayer_pkcs12(), s);
    informacoes_adicionais const informacoes(versao_qrcode::versao_200, std::string(url_chave), pagina);
    document.gerar_qrcode(informacoes, "000001", csc, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    velk::test::qrcode_entrada const entrada = velk::test::entrada_qrcode(fields, nfce, document.get_digest_value());
    expect_signed_nfce(document, pagina + velk::test::qrcode_esperado_200(entrada, "1", csc));
}

// Each state's own page, from the library's table, in both environments and
// both versions: what the authority's schema accepts, Espírito Santo's too.
TEST(documento_fiscal_qrcode, every_state_page_gives_a_qrcode_the_schema_accepts)
{
    for (int numero = 0; numero < velk::erp::quantidade_estados; ++numero) {
        velk::erp::estado const uf = static_cast<velk::erp::estado>(numero);
        for (int tp_amb : {1, 2}) {
            for (versao_qrcode const version : {versao_qrcode::versao_100, versao_qrcode::versao_200}) {
                SCOPED_TRACE(std::string(velk::erp::get_uf(uf)) + (tp_amb == 1 ? " production" : " homologation") +
                             (version == versao_qrcode::versao_100 ? " 1.00" : " 2.00"));
                velk::test::nfce_campos fields{.cuf = static_cast<unsigned>(velk::erp::get_codigo_ibge(uf)),
                                               .uf = velk::erp::get_uf(uf),
                                               .tp_amb = tp_amb};
                documento_fiscal document = documento_de_texto(velk::test::nfce_texto(fields).texto);
                stack s;
                std::string const page = nfe::detail::obter_url_consulta_qrcode(document, s);
                if (s.has_failed()) {
                    EXPECT_TRUE(uf == velk::erp::estado::ma && tp_amb == 2) << s.to_string();
                    continue;
                }
                document.gerar_qrcode(informacoes_adicionais(version, std::string(url_chave), page), "000001", csc,
                                      s);
                document.assinar(taxpayer_pkcs12(), s);
                ASSERT_FALSE(s.has_failed()) << s.to_string();
                std::string const text = saved_text(document.get_xml());
                auto const problems = velk::test::validate_against_schema(
                    velk::test::schema_dir() / "nfe_v4.00.xsd", velk::core::byte_array(text));
                EXPECT_TRUE(problems.empty()) << problems.front() << "\n" << page;
            }
        }
    }
}

TEST(documento_fiscal_qrcode, url_chave_replaces_and_removes_the_former_one)
{
    std::string text = velk::test::nfce_texto(velk::test::nfce_campos{}).texto;
    text.replace(text.find("</NFe>"), 6,
                 "<infNFeSupl><urlChave>http://a</urlChave><qrCode>x</qrCode><urlChave>http://b</urlChave>"
                 "</infNFeSupl></NFe>");
    documento_fiscal document = documento_de_texto(text);
    EXPECT_EQ(*document.get_url_chave(), "http://a");

    document.adicionar_url_chave(informacoes_adicionais(versao_qrcode::versao_100, std::string("http://c&d"), ""));
    EXPECT_EQ(child_element_names(*document.get_xml().find_child("infNFeSupl")),
              (std::vector<std::string>{"qrCode", "urlChave"}));
    EXPECT_EQ(cdata_of(document.get_xml(), "urlChave"), "http://c&d");
    EXPECT_EQ(*document.get_url_chave(), "http://c&d");

    document.adicionar_url_chave(informacoes_adicionais());
    EXPECT_FALSE(document.get_url_chave().has_value());
    EXPECT_EQ(child_element_names(*document.get_xml().find_child("infNFeSupl")), (std::vector<std::string>{"qrCode"}));

    // On a tree without a supplement, an empty one is made and left.
    documento_fiscal bare = documento_de_texto(velk::test::nfce_texto(velk::test::nfce_campos{}).texto);
    bare.adicionar_url_chave(informacoes_adicionais());
    EXPECT_EQ(child_element_names(bare.get_xml()), (std::vector<std::string>{"infNFe", "infNFeSupl"}));
    EXPECT_TRUE(child_element_names(*bare.get_xml().find_child("infNFeSupl")).empty());
}

}  // namespace
