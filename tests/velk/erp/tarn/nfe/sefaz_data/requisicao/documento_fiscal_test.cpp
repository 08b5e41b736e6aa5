#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include "documento_fiscal_teste.hpp"

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xmlsec.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/erp/tarn/nfe/detail/assinatura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace velk::erp::tarn;
using namespace velk::erp::tarn::nfe::sefaz_data;
using requisicao::documento_fiscal;
using velk::core::result::stack;
using velk::test::child_element_names;
using velk::test::parse_element;
using velk::test::saved_text;
using velk::test::taxpayer_pkcs12;

// The NFe of a sample: the file's root, or the NFe inside an nfeProc.
velk::xml::element sample_nfe(std::string const& file)
{
    velk::xml::element root = parse_element(velk::test::read_text(velk::test::sample("messages/" + file)));
    return root.get_name() == "nfeProc" ? *root.find_child("NFe") : root;
}

std::string contents_at(velk::xml::element const& root, std::string const& path)
{
    auto const found = find_elements_by_path(root, {path});
    return lookup(found, path) == nullptr ? std::string("(absent)") : lookup(found, path)->get_contents();
}

std::string optional_text(velk::core::optional<std::string> const& value)
{
    return value.has_value() ? *value : std::string("(absent)");
}

struct sample_fields {
    char const* file;
    char const* key;
    nfe::versao version;
    ambiente environment;
    modelo model;
    velk::erp::estado state;
    char const* issued;  // dhEmi, written back by the datetime converter
    std::uint32_t series;
    std::uint32_t code;
    std::uint32_t number;
    char const* total;
    char const* icms;
    char const* email;
    char const* recipient;
    char const* qrcode;
    char const* url;
};

using velk::erp::estado;

// Every sample that holds an NF-e, nfeProc archives included.
sample_fields const samples[] = {
    {"nfe_layout4.xml", "43180906929383000163550010000000261000010301", nfe::versao::versao_4_00, ambiente::homologacao,
     modelo::nfe, estado::rs, "2018-09-25T00:00:00-03:00", 1, 1030, 26, "500.00", "0.00", "(absent)", "58716523000119",
     "(absent)", "(absent)"},
    {"nfe_layout4_com_prot.xml", "43180906929383000163550010000000261000010301", nfe::versao::versao_4_00,
     ambiente::homologacao, modelo::nfe, estado::rs, "2018-09-25T00:00:00-03:00", 1, 1030, 26, "500.00", "0.00",
     "(absent)", "58716523000119", "(absent)", "(absent)"},
    {"nfce.xml", "41200323285089000185650010000013051817822496", nfe::versao::versao_4_00, ambiente::producao,
     modelo::nfce, estado::pr, "2020-03-11T15:32:17-03:00", 1, 81782249, 1305, "30.00", "0.00", "(absent)",
     "10422724000187",
     "http://www.fazenda.pr.gov.br/nfce/qrcode?p=41200323285089000185650010000013051817822496|2|2|1|"
     "9D6AB4765658166993902F7F7C26FCD0965E328F",
     "http://www.fazenda.pr.gov.br/nfce/consulta"},
    {"nfce_contingencia.xml", "41240200000000000100650010000000101000000104", nfe::versao::versao_4_00,
     ambiente::homologacao, modelo::nfce, estado::pr, "2024-02-28T09:30:00-03:00", 1, 10, 10, "15.00", "0.00",
     "(absent)", "11111111111", "QRCODE_PLACEHOLDER", "http://www.fazenda.pr.gov.br/nfce/consulta"},
    {"2017nfe_antiga_v310.xml", "35170358716523000119550010000000301000000300", nfe::versao::versao_3_10,
     ambiente::homologacao, modelo::nfe, estado::sp, "2017-03-15T18:10:30-03:00", 1, 30, 30, "19466.30", "2335.96",
     "linux.rlm@gmail.com", "02536490000170", "(absent)", "(absent)"},
    {"2017protocoled.xml", "35170358716523000119550010000000301000000300", nfe::versao::versao_3_10,
     ambiente::homologacao, modelo::nfe, estado::sp, "2017-03-15T18:10:30-03:00", 1, 30, 30, "19466.30", "2335.96",
     "linux.rlm@gmail.com", "02536490000170", "(absent)", "(absent)"},
    {"42220575277525000178550030000292481295366801-procNFe.xml", "42220575277525000178550030000292481295366801",
     nfe::versao::versao_4_00, ambiente::producao, modelo::nfe, estado::sc, "2022-05-27T08:52:04-03:00", 3, 29536680,
     29248, "64237.04", "0.00", "export@jung.com.br", "371780142", "(absent)", "(absent)"},
};

TEST(documento_fiscal, reads_every_sample_document)
{
    for (sample_fields const& expected : samples) {
        SCOPED_TRACE(expected.file);
        stack s;
        documento_fiscal const document = documento_fiscal::from_xml(sample_nfe(expected.file), s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(velk::core::make_string(document.get_chave_acesso(), s), expected.key);
        EXPECT_EQ(document.get_versao(), expected.version);
        EXPECT_EQ(document.get_ambiente(), expected.environment);
        EXPECT_EQ(document.get_modelo(), expected.model);
        EXPECT_EQ(document.get_estado(), expected.state);
        EXPECT_EQ(velk::core::make_string(document.get_data_hora_emissao(), s), expected.issued);
        EXPECT_EQ(document.get_serie(), expected.series);
        EXPECT_EQ(document.get_codigo_numerico(), expected.code);
        EXPECT_EQ(document.get_numero_nota_fiscal(), expected.number);
        EXPECT_EQ(document.get_valor_total(), expected.total);
        EXPECT_EQ(document.get_valor_icms(), expected.icms);
        EXPECT_EQ(optional_text(document.get_email_destinatario()), expected.email);
        EXPECT_EQ(optional_text(document.get_identificador_destinatario()), expected.recipient);
        EXPECT_EQ(optional_text(document.get_qrcode_value()), expected.qrcode);
        EXPECT_EQ(optional_text(document.get_url_chave()), expected.url);
        EXPECT_EQ(document.get_xml().get_name(), "NFe");
    }
}

struct signing_case {
    char const* file;
    char const* schema;
    bool schema_valid;  // whether the document, once signed, is valid: some samples are not on their own
};

TEST(documento_fiscal, signs_every_sample_so_that_verifier_and_schema_accept_it)
{
    signing_case const cases[] = {
        {"nfe_layout4.xml", "nfe_v4.00.xsd", true},
        {"nfe_layout4_com_prot.xml", "nfe_v4.00.xsd", true},
        {"nfce.xml", "nfe_v4.00.xsd", false},                 // dest carries xFant, which the layout lacks
        {"nfce_contingencia.xml", "nfe_v4.00.xsd", false},    // dest lacks indIEDest
        {"2017nfe_antiga_v310.xml", "nfe_v3.10.xsd", true},
        {"2017protocoled.xml", "nfe_v3.10.xsd", true},
        {"42220575277525000178550030000292481295366801-procNFe.xml", "nfe_v4.00.xsd", true},
    };
    velk::cryptography::pkcs12 const& certificate = taxpayer_pkcs12();
    for (signing_case const& current : cases) {
        SCOPED_TRACE(current.file);
        velk::xml::element const original = sample_nfe(current.file);
        velk::xml::element unsigned_nfe = original;
        velk::erp::tarn::nfe::detail::remover_primeira_assinatura(unsigned_nfe);

        stack s;
        // The digest the QR code takes before there is a signature.
        std::string const digest_before = documento_fiscal::from_xml(unsigned_nfe, s).get_digest_value();
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(digest_before.size(), 28U);

        documento_fiscal document = documento_fiscal::from_xml(original, s);
        document.assinar(certificate, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        velk::xml::element const signed_nfe = document.get_xml();
        std::vector<std::string> const children = child_element_names(signed_nfe);
        EXPECT_EQ(children.back(), "Signature");
        EXPECT_EQ(std::count(children.begin(), children.end(), "Signature"), 1);
        EXPECT_EQ(contents_at(signed_nfe, "Signature/SignedInfo/Reference/DigestValue"), digest_before);
        EXPECT_EQ(document.get_digest_value(), digest_before);

        std::string const text = saved_text(signed_nfe);
        auto const verified =
            velk::test::xmlsec_verify(text, velk::test::id_infnfe, velk::test::test_certificates::instance().ca_pem());
        EXPECT_TRUE(verified.success) << verified.output;
        auto const problems =
            velk::test::validate_against_schema(velk::test::schema_dir() / current.schema, velk::core::byte_array(text));
        EXPECT_EQ(problems.empty(), current.schema_valid) << (problems.empty() ? "valid" : problems.front());
    }
}

TEST(documento_fiscal, signing_again_replaces_only_the_first_signature)
{
    velk::cryptography::pkcs12 const& certificate = taxpayer_pkcs12();
    stack s;
    documento_fiscal document = documento_fiscal::from_xml(sample_nfe("nfce_contingencia.xml"), s);
    document.assinar(certificate, s);
    document.assinar(certificate, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(child_element_names(document.get_xml()),
              (std::vector<std::string>{"infNFe", "infNFeSupl", "Signature"}));
    auto const verified = velk::test::xmlsec_verify(saved_text(document.get_xml()), velk::test::id_infnfe,
                                                    velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;

    // Two signatures: the first goes, the second stays, the new one comes last.
    velk::xml::element twice = document.get_xml();
    velk::xml::element marked = *twice.find_child("Signature");
    marked.find_child("SignatureValue")->set_contents("segunda");
    twice.append_node(marked);
    documento_fiscal doubled = documento_fiscal::from_xml(twice, s);
    doubled.assinar(certificate, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    velk::xml::element const result = doubled.get_xml();
    EXPECT_EQ(child_element_names(result),
              (std::vector<std::string>{"infNFe", "infNFeSupl", "Signature", "Signature"}));
    EXPECT_EQ(result.find_child("Signature")->find_child("SignatureValue")->get_contents(), "segunda");
}

TEST(documento_fiscal, the_infnfe_it_digests_outlives_the_element_it_came_from)
{
    stack s;
    std::string expected;
    documento_fiscal copy;
    {
        velk::xml::element source = sample_nfe("nfe_layout4.xml");
        velk::erp::tarn::nfe::detail::remover_primeira_assinatura(source);
        documento_fiscal const original = documento_fiscal::from_xml(source, s);
        expected = original.get_digest_value();
        copy = original;
    }
    EXPECT_EQ(copy.get_digest_value(), expected);
    documento_fiscal const constructed(copy);
    documento_fiscal moved(std::move(copy));
    EXPECT_EQ(constructed.get_digest_value(), expected);
    EXPECT_EQ(moved.get_digest_value(), expected);

    moved.assinar(taxpayer_pkcs12(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(moved.get_digest_value(), expected);
    documento_fiscal const signed_copy = moved;
    EXPECT_EQ(signed_copy.get_digest_value(), expected);
    EXPECT_EQ(constructed.get_digest_value(), expected) << "signing one object leaves its copies alone";
}

TEST(documento_fiscal, fails_to_sign_on_the_stack_without_crashing)
{
    stack s;
    // The key is read from the Id behind any three letters, but the signature
    // refers to "NFe" and the key: a tree whose Id says otherwise has nothing
    // the reference names.
    std::string text = velk::test::read_text(velk::test::sample("messages/nfce_contingencia.xml"));
    text.replace(text.find("Id=\"NFe") + 4, 3, "XYZ");
    documento_fiscal renamed = documento_fiscal::from_xml(parse_element(text), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    renamed.assinar(taxpayer_pkcs12(), s);
    EXPECT_EQ(&s.get_category(), &velk::cryptography::cryptography_result_category::instance());
    EXPECT_EQ(s.get_value(), 13);
    EXPECT_EQ(*s.top().find_argument("uri"), "#NFe41240200000000000100650010000000101000000104");
    EXPECT_EQ(child_element_names(renamed.get_xml()).back(), "Signature") << "the template stays, unsigned";

    // A key that is not the certificate's cannot even make a container; the
    // empty one it leaves signs nothing.
    auto const& certificates = velk::test::test_certificates::instance();
    stack key_stack;
    auto const other_key = velk::cryptography::evp_private_key::from_byte_array(
        velk::core::byte_array(certificates.other().private_key_pem()), velk::cryptography::encoding::pem, key_stack);
    velk::cryptography::pkcs12 const mismatched =
        velk::cryptography::pkcs12::from_certificate_and_key(taxpayer_pkcs12().get_certificate(), other_key, key_stack);
    EXPECT_EQ(key_stack.get_value(), 7);
    s.reset();
    documento_fiscal document = documento_fiscal::from_xml(sample_nfe("nfce_contingencia.xml"), s);
    document.assinar(mismatched, s);
    EXPECT_EQ(&s.get_category(), &velk::cryptography::cryptography_result_category::instance());
    EXPECT_EQ(s.get_value(), 4) << s.to_string();

    s.reset();
    documento_fiscal empty;
    empty.assinar(taxpayer_pkcs12(), s);
    EXPECT_TRUE(s.has_failed());
}

TEST(documento_fiscal, digest_of_an_object_without_infnfe_is_a_defect)
{
    EXPECT_EXIT(documento_fiscal().get_digest_value(), testing::ExitedWithCode(1),
                "Não foi possível obter o valor interno do infNFe na estrutura do documento fiscal");
}

std::string const key = "35240611222333000181550010000012341876543210";

// A small NF-e with every element read; `replace` swaps one piece of it.
std::string small_nfe(std::string const& from = "", std::string const& to = "")
{
    std::string text =
        "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe versao=\"4.00\" Id=\"NFe" + key + "\">"
        "<ide><cUF>35</cUF><cNF>00001234</cNF><mod>55</mod><serie>1</serie><nNF>1234</nNF>"
        "<dhEmi>2024-06-01T10:00:00-03:00</dhEmi><tpAmb>2</tpAmb></ide>"
        "<dest><CNPJ>11222333000181</CNPJ><CPF>12345678909</CPF><email>a@b.c</email></dest>"
        "<total><ICMSTot><vICMS>1.80</vICMS><vNF>10.00</vNF></ICMSTot></total></infNFe></NFe>";
    if (!from.empty()) {
        std::size_t const at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
    }
    return text;
}

TEST(documento_fiscal, digests_whatever_names_it_reads)
{
    // U+045D, a letter the parser takes in a name and older XML rules did not.
    velk::xml::document read;
    stack s;
    ASSERT_TRUE(read.load(velk::core::byte_array(small_nfe("<dest>", "<\xD1\x9D a\xD1\x9D=\"1\"/><dest>")), s))
        << s.to_string();
    documento_fiscal document = documento_fiscal::from_xml(read, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    std::string const digest = document.get_digest_value();
    EXPECT_EQ(digest.size(), 28U);

    document.assinar(taxpayer_pkcs12(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(contents_at(document.get_xml(), "Signature/SignedInfo/Reference/DigestValue"), digest);
    auto const verified = velk::test::xmlsec_verify(saved_text(document.get_xml()), velk::test::id_infnfe,
                                                    velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;
}

// --- reading failures ---------------------------------------------------------

struct reading_failure {
    char const* name;
    std::string text;
    bool chained;  // on top of the converter's failure
    int code;
    char const* argument;
    std::string value;
    char const* second_argument;
    std::string second_value;
};

// `count` empty items, enough to be counted.
std::string items(int count)
{
    std::string text;
    for (int item = 1; item <= count; ++item) {
        text += "<det nItem=\"" + std::to_string(item) + "\"/>";
    }
    return text;
}

TEST(documento_fiscal, names_what_it_could_not_read)
{
    std::string const id = "NFe" + key;
    reading_failure const cases[] = {
        {"root of another name", "<nfeProc><NFe/></nfeProc>", false, 1, "element-name", "NFe", nullptr, ""},
        {"no infNFe", "<NFe><infNFeSupl/></NFe>", false, 1, "element-name", "NFe/infNFe", nullptr, ""},
        {"no Id", small_nfe(" Id=\"" + id + "\"", ""), false, 4, "attribute-name", "NFe/infNFe/Id", nullptr, ""},
        {"Id of 46 characters", small_nfe(id, id.substr(1)), false, 3, "attribute-name", "NFe/infNFe/Id",
         "attribute-value", id.substr(1)},
        {"key of no state", small_nfe(id, "NFe99" + key.substr(2)), true, 3, "attribute-name", "NFE/infNFe/Id",
         "attribute-value", "99" + key.substr(2)},
        {"no versao", small_nfe(" versao=\"4.00\"", ""), false, 4, "attribute-name", "NFe/infNFe/versao", nullptr, ""},
        {"unknown versao", small_nfe("versao=\"4.00\"", "versao=\"5.00\""), true, 3, "attribute-name",
         "NFe/infNFe/versao", "attribute-value", "5.00"},
        {"no tpAmb", small_nfe("<tpAmb>2</tpAmb>"), false, 1, "element-name", "NFe/infNFe/ide/tpAmb", nullptr, ""},
        {"tpAmb 3", small_nfe("<tpAmb>2</tpAmb>", "<tpAmb>3</tpAmb>"), true, 2, "element-name", "NFe/infNFe/ide/tpAmb",
         "element-value", "3"},
        {"no mod", small_nfe("<mod>55</mod>"), false, 1, "element-name", "NFe/infNFe/ide/mod", nullptr, ""},
        {"mod 57", small_nfe("<mod>55</mod>", "<mod>57</mod>"), true, 2, "element-name", "NFe/infNFe/ide/mod",
         "element-value", "57"},
        {"no cUF", small_nfe("<cUF>35</cUF>"), false, 1, "element-name", "NFe/infNFe/ide/cUF", nullptr, ""},
        {"cUF 99", small_nfe("<cUF>35</cUF>", "<cUF>99</cUF>"), true, 2, "element-name", "NFe/infNFe/ide/cUF",
         "element-value", "99"},
        {"no dhEmi", small_nfe("<dhEmi>2024-06-01T10:00:00-03:00</dhEmi>"), false, 1, "element-name",
         "NFe/infNFe/ide/dhEmi", nullptr, ""},
        {"dhEmi without time", small_nfe("2024-06-01T10:00:00-03:00", "2024-06-01"), true, 2, "element-name",
         "NFe/infNFe/ide/dhEmi", "element-value", "2024-06-01"},
        {"no serie", small_nfe("<serie>1</serie>"), false, 1, "element-name", "NFe/infNFe/ide/serie", nullptr, ""},
        {"serie with a letter", small_nfe("<serie>1</serie>", "<serie>1A</serie>"), true, 2, "element-name",
         "NFe/infNFe/ide/serie", "element-value", "1A"},
        {"no cNF", small_nfe("<cNF>00001234</cNF>"), false, 1, "element-name", "NFe/infNFe/ide/cNF", nullptr, ""},
        {"cNF with a blank", small_nfe("<cNF>00001234</cNF>", "<cNF>0000 234</cNF>"), true, 2, "element-name",
         "NFe/infNFe/ide/cNF", "element-value", "0000 234"},
        {"no nNF", small_nfe("<nNF>1234</nNF>"), false, 1, "element-name", "NFe/infNFe/ide/nNF", nullptr, ""},
        {"nNF of 33 characters", small_nfe("<nNF>1234</nNF>", "<nNF>" + std::string(33, '1') + "</nNF>"), true, 2,
         "element-name", "NFe/infNFe/ide/nNF", "element-value", std::string(33, '1')},
        {"no vNF", small_nfe("<vNF>10.00</vNF>"), false, 1, "element-name", "NFe/infNFe/total/ICMSTot/vNF", nullptr,
         ""},
        {"no vICMS", small_nfe("<vICMS>1.80</vICMS>"), false, 1, "element-name", "NFe/infNFe/total/ICMSTot/vICMS",
         nullptr, ""},
        {"more items than the layout admits", small_nfe("<dest>", items(991) + "<dest>"), false, 2, "element-name",
         "NFe/infNFe/det", "element-value", "991"},
    };
    for (reading_failure const& current : cases) {
        SCOPED_TRACE(current.name);
        stack s;
        s.push_item(velk::core::converter_result_category::instance(), 1);  // left over: a fresh report drops it
        documento_fiscal::from_xml(parse_element(current.text), s);
        ASSERT_TRUE(s.has_failed());
        EXPECT_EQ(&s.get_category(), &result_category::instance());
        EXPECT_EQ(s.get_value(), current.code) << s.to_string();
        ASSERT_EQ(s.size(), current.chained ? 2U : 1U) << s.to_string();
        if (current.chained) {
            EXPECT_EQ(&s.begin()->get_category(), &velk::core::converter_result_category::instance());
        }
        ASSERT_NE(s.top().find_argument(current.argument), nullptr) << s.to_string();
        EXPECT_EQ(*s.top().find_argument(current.argument), current.value);
        if (current.second_argument != nullptr) {
            ASSERT_NE(s.top().find_argument(current.second_argument), nullptr) << s.to_string();
            EXPECT_EQ(*s.top().find_argument(current.second_argument), current.second_value);
        }
    }
    stack s;
    documento_fiscal::from_xml(parse_element(small_nfe("<dest>", items(990) + "<dest>")), s);
    EXPECT_FALSE(s.has_failed()) << "as many items as the layout admits: " << s.to_string();
}

TEST(documento_fiscal, reads_what_the_layouts_leave_open)
{
    stack s;
    // Both CPF and CNPJ: the CPF. Any three letters before the key.
    documento_fiscal const both = documento_fiscal::from_xml(parse_element(small_nfe("Id=\"NFe", "Id=\"XYZ")), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(optional_text(both.get_identificador_destinatario()), "12345678909");
    EXPECT_EQ(optional_text(both.get_email_destinatario()), "a@b.c");
    EXPECT_EQ(velk::core::make_string(both.get_chave_acesso(), s), key);

    // No dest: neither identifier nor e-mail, and no failure.
    std::string without_dest = small_nfe();
    without_dest.erase(without_dest.find("<dest>"), without_dest.find("</dest>") + 7 - without_dest.find("<dest>"));
    documento_fiscal const anonymous = documento_fiscal::from_xml(parse_element(without_dest), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_FALSE(anonymous.get_identificador_destinatario().has_value());
    EXPECT_FALSE(anonymous.get_email_destinatario().has_value());

    // Layout 2.00: key and version only, everything else as by default.
    documento_fiscal const old = documento_fiscal::from_xml(
        parse_element("<NFe><infNFe versao=\"2.00\" Id=\"NFe" + key + "\"/></NFe>"), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(old.get_versao(), nfe::versao::versao_2_00);
    EXPECT_EQ(old.get_ambiente(), ambiente::homologacao);
    EXPECT_EQ(old.get_serie(), 0U);
    EXPECT_EQ(old.get_valor_total(), "");

    // A document without root.
    velk::xml::document const nothing;
    documento_fiscal::from_xml(nothing, s);
    EXPECT_EQ(s.get_value(), 5);
    EXPECT_EQ(s.size(), 1U);
}

}  // namespace
