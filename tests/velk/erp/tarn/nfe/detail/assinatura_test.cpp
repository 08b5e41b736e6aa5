#include <velk/erp/tarn/nfe/detail/assinatura.hpp>

#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <velk/core/binary_encoder.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::test::parse_element;
using velk::test::taxpayer_pkcs12;
namespace campo = velk::erp::tarn::nfe::sefaz_data::requisicao::detail;

std::vector<std::string> children_of(velk::xml::element const& parent)
{
    std::vector<std::string> names;
    for (auto const& child : parent.get_node_range()) {
        names.push_back(child.as_element() != nullptr ? child.as_element()->get_name() : "#text");
    }
    return names;
}

TEST(assinatura, drops_only_the_first_signature_among_the_elements)
{
    velk::xml::element root =
        parse_element("<evento>\n<Signature n=\"1\"/><infEvento/>\n<Signature n=\"2\"/></evento>");
    EXPECT_TRUE(velk::erp::tarn::nfe::detail::remover_primeira_assinatura(root));
    EXPECT_EQ(children_of(root), (std::vector<std::string>{"#text", "infEvento", "#text", "Signature"}));
    EXPECT_EQ(root.find_child("Signature")->get_attributes().front().get_value(), "2");
    EXPECT_TRUE(velk::erp::tarn::nfe::detail::remover_primeira_assinatura(root));
    EXPECT_FALSE(velk::erp::tarn::nfe::detail::remover_primeira_assinatura(root));
}

TEST(assinatura, an_identifier_without_text_ends_the_frame_unsigned)
{
    velk::xml::element root = parse_element("<evento><infEvento Id=\"ID1\"/><Signature/></evento>");
    stack s;
    auto const failing = [](std::string& id, stack& pieces) {
        id = "ID";
        return campo::escrever_numero(id, 100, 2, 2, "evento", "sequencia", pieces);
    };
    velk::erp::tarn::nfe::detail::assinar_raiz(root, failing, taxpayer_pkcs12(), s);
    ASSERT_EQ(s.size(), 2U) << s.to_string();
    EXPECT_EQ(s.get_value(), 9);
    EXPECT_EQ(*s.top().find_argument("request-name"), "evento");
    EXPECT_EQ(*s.top().find_argument("field-name"), "sequencia");
    EXPECT_EQ(children_of(root), (std::vector<std::string>{"infEvento"})) << "old signature gone, none added";

    s.reset();
    auto const good = [](std::string& id, stack&) {
        id = "ID1";
        return true;
    };
    velk::erp::tarn::nfe::detail::assinar_raiz(root, good, taxpayer_pkcs12(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(root.find_child("Signature")->find_child("SignedInfo")->find_child("Reference")->find_attribute("", "URI")->get_value(),
              "#ID1");
}

// Every "Algorithm" under the element, in document order, with the name of
// the element that carries it.
void collect_algorithms(velk::xml::element const& parent, std::vector<std::string>& found)
{
    if (auto const* algorithm = parent.find_attribute("", "Algorithm")) {
        found.push_back(parent.get_name() + " " + algorithm->get_value());
    }
    for (auto const& child : parent.get_node_range()) {
        if (auto const* nested = child.as_element()) {
            collect_algorithms(*nested, found);
        }
    }
}

TEST(assinatura, signs_by_the_profile_of_the_layouts_transforms_in_their_order)
{
    velk::xml::element root = parse_element("<evento><infEvento Id=\"ID1\"/></evento>");
    stack s;
    velk::erp::tarn::nfe::detail::assinar_raiz(
        root,
        [](std::string& id, stack&) {
            id = "ID1";
            return true;
        },
        taxpayer_pkcs12(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    std::vector<std::string> algorithms;
    collect_algorithms(*root.find_child("Signature"), algorithms);
    // The order of the transforms is part of the layouts' profile, which the
    // authority holds a signature to as written, whatever a verifier makes of it.
    EXPECT_EQ(algorithms, (std::vector<std::string>{
                              "CanonicalizationMethod http://www.w3.org/TR/2001/REC-xml-c14n-20010315",
                              "SignatureMethod http://www.w3.org/2000/09/xmldsig#rsa-sha1",
                              "Transform http://www.w3.org/2000/09/xmldsig#enveloped-signature",
                              "Transform http://www.w3.org/TR/2001/REC-xml-c14n-20010315",
                              "DigestMethod http://www.w3.org/2000/09/xmldsig#sha1",
                          }));
}

// Each signature starts from one template kept for all: the URI of one
// document must not reach another, and the rest of the Signature is the same
// for both but for the values computed.
TEST(assinatura, each_document_gets_its_own_reference_and_the_certificate_as_it_is)
{
    auto const signed_root = [](std::string const& id) {
        velk::xml::element root = parse_element("<evento><infEvento Id=\"" + id + "\">x</infEvento></evento>");
        stack s;
        velk::erp::tarn::nfe::detail::assinar_raiz(
            root,
            [&id](std::string& value, stack&) {
                value = id;
                return true;
            },
            taxpayer_pkcs12(), s);
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        return root;
    };
    velk::xml::element first = signed_root("ID1");
    velk::xml::element const second = signed_root("ID22");
    velk::xml::element third = signed_root("ID1");

    auto const reference_uri = [](velk::xml::element const& root) {
        velk::xml::element const* reference = root.find_child("Signature")->find_child("SignedInfo")->find_child("Reference");
        return reference->find_attribute("", "URI")->get_value();
    };
    EXPECT_EQ(reference_uri(first), "#ID1");
    EXPECT_EQ(reference_uri(second), "#ID22");
    EXPECT_EQ(velk::test::saved_text(first), velk::test::saved_text(third));

    auto const certificate_text = [](velk::xml::element const& root) {
        velk::xml::element const* data = root.find_child("Signature")->find_child("KeyInfo")->find_child("X509Data");
        return data->find_child("X509Certificate")->get_contents();
    };
    stack s;
    velk::core::byte_array const der =
        taxpayer_pkcs12().get_certificate().to_byte_array(velk::cryptography::encoding::der, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    std::string const expected = velk::core::binary_encoder::encode(velk::core::binary_encoding::base64, der);
    EXPECT_EQ(certificate_text(first), expected);
    EXPECT_EQ(certificate_text(second), expected);
}

TEST(assinatura, identifier_pieces_have_their_widths)
{
    struct row {
        unsigned long long value;
        unsigned min_digits;
        unsigned max_digits;
        char const* text;  // null: refused
    };
    unsigned const any = campo::sem_limite;
    row const rows[] = {
        {7, 2, 2, "07"},       {99, 2, 2, "99"},       {100, 2, 2, nullptr}, {35, 9, any, "000000035"},
        {1234567890, 9, any, "1234567890"}, {0, 3, any, "000"}, {1000, 1, 3, nullptr}, {999, 1, 3, "999"},
    };
    for (row const& current : rows) {
        SCOPED_TRACE(current.value);
        stack s;
        std::string text = "ID";
        bool const written = campo::escrever_numero(text, current.value, current.min_digits, current.max_digits,
                                                    "inutilizacao", "serie", s);
        if (current.text == nullptr) {
            EXPECT_FALSE(written);
            EXPECT_EQ(text, "ID");
            EXPECT_EQ(s.begin()->get_value(), 2);
            EXPECT_EQ(*s.top().find_argument("field-name"), "serie");
        } else {
            EXPECT_TRUE(written);
            EXPECT_EQ(text, std::string("ID") + current.text);
        }
    }
}

}  // namespace
