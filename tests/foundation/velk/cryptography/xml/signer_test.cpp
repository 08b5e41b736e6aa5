#include <velk/cryptography/xml/signer.hpp>

#include "../openssl_fixtures.hpp"
#include "signature_fixtures.hpp"

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>
#include <velk/core/binary_encoder.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>

namespace velk::cryptography::xml {
namespace {

using namespace velk::test;

constexpr char nfe_id_element[] = "http://www.portalfiscal.inf.br/nfe:infNFe";
constexpr char event_id_element[] = "http://www.portalfiscal.inf.br/nfe:infEvento";
constexpr char nfe_id[] = "NFe35240612345678000195650010000000011000000019";

// A small NFC-e: infNFe inherits the default namespace and xmlns:xsi from
// NFe, and its text needs escaping, so canonicalisation in context matters.
std::string const nfe_text =
    "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">"
    "<infNFe versao=\"4.00\" Id=\"NFe35240612345678000195650010000000011000000019\">"
    "<ide><cUF>35</cUF><natOp>VENDA &amp; TROCA</natOp><mod>65</mod></ide>"
    "<emit><CNPJ>12345678000195</CNPJ><xNome>Padaria \"Pão Quente\" &lt;Centro&gt;</xNome></emit>"
    "<det nItem=\"1\"><prod><cProd>1</cProd><xProd>Café</xProd><vProd>10.50</vProd></prod></det>"
    "</infNFe>"
    "<infNFeSupl><qrCode><![CDATA[https://exemplo/qrcode?p=1|2]]></qrCode></infNFeSupl>"
    "</NFe>";

std::string without_blanks(std::string text)
{
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == ' '; }),
               text.end());
    return text;
}

TEST(signer, signs_so_that_xmlsec1_verifies_against_the_test_ca)
{
    velk::xml::element nfe = parse_element(nfe_text);
    core::result::stack stack;
    ASSERT_TRUE(append_and_sign(nfe, std::string("#") + nfe_id, taxpayer_pkcs12(), stack)) << stack.to_string();
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    EXPECT_EQ(child_element_names(nfe), (std::vector<std::string>{"infNFe", "infNFeSupl", "Signature"}));
    EXPECT_EQ(contents_of(nfe, "DigestValue").size(), 28U) << "Base64 of 20 bytes";
    EXPECT_EQ(contents_of(nfe, "SignatureValue").size(), 344U) << "Base64 of 256 bytes";
    core::byte_array certificate;
    ASSERT_TRUE(core::binary_encoder::decode(core::binary_encoding::base64, contents_of(nfe, "X509Certificate"),
                                             certificate));
    EXPECT_EQ(certificate, test_certificates::instance().taxpayer().certificate_der());

    std::string const signed_text = saved_text(nfe);
    xmlsec_result const verified = xmlsec_verify(signed_text, nfe_id_element, test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output << "\n" << signed_text;
}

TEST(signer, computes_the_same_digest_and_signature_values_as_xmlsec1)
{
    velk::xml::element nfe = parse_element(nfe_text);
    core::result::stack stack;
    nfe.append_node(nfe_signature_template(std::string("#") + nfe_id, stack));
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    auto const& taxpayer = test_certificates::instance().taxpayer();
    std::string by_xmlsec;
    xmlsec_result const made = xmlsec_sign(saved_text(nfe), nfe_id_element, taxpayer.private_key_pem(),
                                           taxpayer.certificate_pem(), by_xmlsec);
    ASSERT_TRUE(made.success) << made.output;

    pkcs12 const certificate = taxpayer_pkcs12();
    ASSERT_TRUE(signer(certificate.get_certificate(), certificate.get_evp_private_key()).execute(nfe, stack))
        << stack.to_string();
    velk::xml::element const theirs = parse_element(by_xmlsec);
    EXPECT_EQ(contents_of(nfe, "DigestValue"), without_blanks(contents_of(theirs, "DigestValue")));
    // PKCS#1 v1.5 is deterministic: equal values mean equal canonical SignedInfo.
    EXPECT_EQ(contents_of(nfe, "SignatureValue"), without_blanks(contents_of(theirs, "SignatureValue")));
}

struct signed_sample {
    char const* file;
    char const* schema;  // of envEvento; empty where the layouts have none for the event
};

TEST(signer, reproduces_the_digest_values_of_signed_event_samples)
{
    signed_sample const samples[] = {
        {"exemplo_xml_request_sefazAtorInteressado.xml", "envEventoAtorInteressado_v1.00.xsd"},
        {"exemplo_xml_request_sefazCancelaPorSubstituicao.xml", "envEventoCancSubst_v1.00.xsd"},
        {"exemplo_xml_request_sefazEPP.xml", "envEvento_v1.00.xsd"},
        {"exemplo_xml_request_sefazManifesta.xml", "envConfRecebto_v1.00.xsd"},
        {"exemplo_xml_sefazCancela.xml", "envEventoCancNFe_v1.00.xsd"},
    };
    pkcs12 const certificate = taxpayer_pkcs12();
    for (auto const& sample : samples) {
        SCOPED_TRACE(sample.file);
        std::string const original = read_text(velk::test::sample(std::string("signed/") + sample.file));
        xmlsec_result const accepted = xmlsec_verify(original, event_id_element, "");
        EXPECT_TRUE(accepted.success) << accepted.output;

        velk::xml::element message = parse_element(original);
        velk::xml::element* envelope = message.find_child("envEvento");
        ASSERT_NE(envelope, nullptr);
        velk::xml::element* event = envelope->find_child("evento");
        ASSERT_NE(event, nullptr);
        std::string const expected = contents_of(*event, "DigestValue");
        velk::xml::attribute const* id = event->find_child("infEvento")->find_attribute("", "Id");
        ASSERT_NE(id, nullptr);

        ASSERT_TRUE(remove_first_signature(*event));
        core::result::stack stack;
        ASSERT_TRUE(append_and_sign(*event, "#" + id->get_value(), certificate, stack)) << stack.to_string();
        EXPECT_EQ(contents_of(*event, "DigestValue"), expected);

        xmlsec_result const verified =
            xmlsec_verify(saved_text(message), event_id_element, test_certificates::instance().ca_pem());
        EXPECT_TRUE(verified.success) << verified.output;
        EXPECT_EQ(validate_against_schema(schema_dir() / sample.schema, *envelope), std::vector<std::string>());
    }
}

TEST(signer, leaves_itself_out_when_it_lies_inside_the_signed_element)
{
    // The reference names elemento_pai itself: only the enveloped-signature
    // transform keeps the Signature being computed out of its own digest.
    velk::xml::element document = parse_element(
        "<lote xmlns=\"urn:velk:teste\" Id=\"L1\"><item n=\"1\">um</item><item n=\"2\">dois</item></lote>");
    core::result::stack stack;
    ASSERT_TRUE(append_and_sign(document, "#L1", taxpayer_pkcs12(), stack)) << stack.to_string();
    xmlsec_result const verified =
        xmlsec_verify(saved_text(document), "urn:velk:teste:lote", test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;
}

TEST(signer, signs_again_after_the_old_signature_is_removed)
{
    velk::xml::element nfe = parse_element(nfe_text);
    pkcs12 const certificate = taxpayer_pkcs12();
    core::result::stack stack;
    ASSERT_TRUE(append_and_sign(nfe, std::string("#") + nfe_id, certificate, stack)) << stack.to_string();
    std::string const first_value = contents_of(nfe, "SignatureValue");

    ASSERT_TRUE(remove_first_signature(nfe));
    ASSERT_TRUE(append_and_sign(nfe, std::string("#") + nfe_id, certificate, stack)) << stack.to_string();
    EXPECT_EQ(child_element_names(nfe), (std::vector<std::string>{"infNFe", "infNFeSupl", "Signature"}));
    EXPECT_EQ(contents_of(nfe, "SignatureValue"), first_value) << "same content, same key, same value";
    xmlsec_result const verified =
        xmlsec_verify(saved_text(nfe), nfe_id_element, test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;
}

TEST(signer, fills_the_last_signature_and_leaves_an_older_one_alone)
{
    velk::xml::element nfe = parse_element(nfe_text);
    core::result::stack stack;
    nfe.append_node(nfe_signature_template("#older", stack));  // never signed: its reference dangles
    ASSERT_TRUE(append_and_sign(nfe, std::string("#") + nfe_id, taxpayer_pkcs12(), stack)) << stack.to_string();

    EXPECT_EQ(child_element_names(nfe),
              (std::vector<std::string>{"infNFe", "infNFeSupl", "Signature", "Signature"}));
    velk::xml::element const* older = nfe.find_child("Signature");
    EXPECT_EQ(contents_of(*older, "DigestValue"), "");
    EXPECT_EQ(contents_of(*older, "SignatureValue"), "");
    EXPECT_EQ(contents_of(nfe, "DigestValue").size(), 28U) << "the one signed";
}

TEST(signer, reports_failures_and_leaves_the_template_unsigned)
{
    std::string const duplicated_id = std::string(nfe_text).replace(
        nfe_text.find("<det nItem"), 0, std::string("<extra Id=\"") + nfe_id + "\"/>");
    core::result::stack ec_stack;
    pkcs12 const ec_certificate = pkcs12::from_byte_array(make_ec_pkcs12("ec"), "ec", ec_stack);
    ASSERT_FALSE(ec_stack.has_failed()) << ec_stack.to_string();
    pkcs12 const certificate = taxpayer_pkcs12();
    core::result::stack stack;
    auto const other_key = evp_private_key::from_byte_array(
        core::byte_array(test_certificates::instance().other().private_key_pem()), encoding::pem, stack);

    struct failing_case {
        char const* name;
        std::string document;
        std::string uri;
        bool with_template;
        x509_certificate certificate;
        evp_private_key key;
        int code;
        char const* argument;
        std::string value;
    };
    failing_case const cases[] = {
        {"reference to a missing Id", nfe_text, "#NFe0000", true, certificate.get_certificate(),
         certificate.get_evp_private_key(), 13, "uri", "#NFe0000"},
        {"reference without #", nfe_text, nfe_id, true, certificate.get_certificate(),
         certificate.get_evp_private_key(), 13, "uri", nfe_id},
        {"Id on two elements", duplicated_id, std::string("#") + nfe_id, true, certificate.get_certificate(),
         certificate.get_evp_private_key(), 14, "uri", std::string("#") + nfe_id},
        {"key of another certificate", nfe_text, std::string("#") + nfe_id, true, certificate.get_certificate(),
         other_key, 7, "subject", "EMPRESA DE TESTES LTDA:12345678000195"},
        {"EC key for RSA-SHA1", nfe_text, std::string("#") + nfe_id, true, ec_certificate.get_certificate(),
         ec_certificate.get_evp_private_key(), 11, "algorithm", "http://www.w3.org/2000/09/xmldsig#rsa-sha1"},
        {"no Signature child", nfe_text, "", false, certificate.get_certificate(), certificate.get_evp_private_key(),
         15, "element", "NFe"},
        {"empty certificate", nfe_text, std::string("#") + nfe_id, true, x509_certificate(),
         certificate.get_evp_private_key(), 4, "description", "certificado vazio"},
    };
    for (auto const& failing : cases) {
        SCOPED_TRACE(failing.name);
        velk::xml::element nfe = parse_element(failing.document);
        core::result::stack local;
        if (failing.with_template) {
            nfe.append_node(nfe_signature_template(failing.uri, local));
        }
        std::string const before = saved_text(nfe);
        EXPECT_FALSE(signer(failing.certificate, failing.key).execute(nfe, local));
        ASSERT_TRUE(local.has_failed());
        EXPECT_EQ(&local.get_category(), &cryptography_result_category::instance());
        EXPECT_EQ(local.get_value(), failing.code) << local.to_string();
        ASSERT_NE(local.top().find_argument(failing.argument), nullptr) << local.to_string();
        EXPECT_EQ(*local.top().find_argument(failing.argument), failing.value);
        EXPECT_EQ(saved_text(nfe), before) << "the tree is left as it was";
    }
}

TEST(signer, finds_a_second_id_wherever_it_stands)
{
    // The walk for the Id stops at the element found; what lies under it is
    // counted by the canonical walk of the digest, the Signature left out of
    // that walk apart. A second Id anywhere is reported the same, and before
    // a name the canonical form refuses.
    std::string const lote =
        "<lote xmlns=\"urn:velk:teste\" Id=\"L1\"><item Id=\"I1\"><parte>um</parte></item>"
        "<item Id=\"I2\">dois</item></lote>";
    auto const nth_child = [](velk::xml::element& parent, std::size_t index) -> velk::xml::element& {
        auto children = parent.get_node_range();
        auto position = children.begin();
        std::advance(position, index);
        return *position->as_element();
    };
    auto const set_id = [](velk::xml::element& target, char const* value) {
        if (velk::xml::attribute* id = target.find_attribute("", "Id")) {
            id->set_value(value);
        } else {
            core::result::stack ignored;
            target.append_attribute(velk::xml::attribute("Id", value), ignored);
        }
    };
    struct placement {
        char const* name;
        std::string uri;
        // Changes the document, its Signature template last.
        std::function<void(velk::xml::element&)> change;
        int code;  // 0 for success
    };
    placement const cases[] = {
        {"unique, under the signed root", "#L1", [](velk::xml::element&) {}, 0},
        {"unique, in the first item", "#I1", [](velk::xml::element&) {}, 0},
        {"again in a later sibling", "#I1",
         [&](velk::xml::element& root) { set_id(nth_child(root, 1), "I1"); }, 14},
        {"again in an earlier sibling", "#I2",
         [&](velk::xml::element& root) { set_id(nth_child(root, 0), "I2"); }, 14},
        {"again under the element found", "#I1",
         [&](velk::xml::element& root) {
             set_id(nth_child(nth_child(root, 0), 0), "I1");
         }, 14},
        {"again inside the Signature left out", "#L1",
         [&](velk::xml::element& root) { set_id(nth_child(nth_child(root, 2), 0), "L1"); }, 14},
        {"again inside the Signature, another element signed", "#I1",
         [&](velk::xml::element& root) { set_id(nth_child(root, 2), "I1"); }, 14},
        {"again after a name the canonical form refuses", "#I1",
         [&](velk::xml::element& root) {
             velk::xml::element& item = nth_child(root, 0);
             item.append_node(velk::xml::element("1parte"));
             item.append_node(velk::xml::element("parte"));
             set_id(nth_child(item, 2), "I1");
         }, 14},
        {"a name the canonical form refuses, the Id unique", "#I1",
         [&](velk::xml::element& root) { nth_child(root, 0).append_node(velk::xml::element("1parte")); }, 16},
    };
    pkcs12 const certificate = taxpayer_pkcs12();
    for (auto const& tried : cases) {
        SCOPED_TRACE(tried.name);
        velk::xml::element document = parse_element(lote);
        core::result::stack stack;
        document.append_node(nfe_signature_template(tried.uri, stack));
        tried.change(document);
        bool const signed_ = signer(certificate.get_certificate(), certificate.get_evp_private_key()).execute(document, stack);
        if (tried.code == 0) {
            EXPECT_TRUE(signed_) << stack.to_string();
            continue;
        }
        EXPECT_FALSE(signed_);
        ASSERT_TRUE(stack.has_failed());
        EXPECT_EQ(stack.get_value(), tried.code) << stack.to_string();
        EXPECT_EQ(stack.size(), 1U) << stack.to_string();
    }
}

TEST(signature_template, refuses_templates_the_profile_cannot_use)
{
    velk::xml::canonicalization_parameters::version_1_0 const parameters;
    method::canonicalization const canonicalization(parameters);
    signed_info const no_reference(canonicalization, method::signature::from_rsa(cryptographic_hash::algorithm::sha1));
    core::result::stack stack;
    signature_template(no_reference, key_info(), {}).get_element_template(stack);
    EXPECT_EQ(stack.get_value(), 12);
    EXPECT_EQ(*stack.top().find_argument("element"), "Reference");

    signed_info with_reference = no_reference;
    with_reference.add_reference(reference(method::digest::from_sha1()));
    stack.reset();
    signature_template(with_reference, key_info(), {}).get_element_template(stack);
    EXPECT_EQ(stack.get_value(), 12);
    EXPECT_EQ(*stack.top().find_argument("element"), "X509Data");

    stack.reset();
    signature_template(with_reference, core::optional<key_info>(), {}).get_element_template(stack);
    EXPECT_FALSE(stack.has_failed()) << "KeyInfo may be left out";
}

}  // namespace
}  // namespace velk::cryptography::xml
