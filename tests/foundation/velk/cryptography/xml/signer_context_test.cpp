// The signer digests the referenced element as a verifier reads it from the
// saved text: with the namespaces and xml: attributes its context gives it,
// and with the tree's own nodes written the way document::save writes them.
// xmlsec1, reading the saved text, is the judge.
#include <velk/cryptography/xml/signer.hpp>

#include "signature_fixtures.hpp"

#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace velk::cryptography::xml {
namespace {

using namespace velk::test;

// A tree made in memory, as a generator makes one: nothing here went through a
// parser, so line ends, undeclared namespaces and prefixes are the signer's to
// write as the saved text will hold them.
velk::xml::element built_in_memory()
{
    core::result::stack stack;
    velk::xml::element root("lote");
    root.append_namespace(velk::xml::namespace_id("", "urn:velk:a"), stack);

    velk::xml::element signed_part("inf");
    signed_part.append_attribute(velk::xml::attribute("Id", "A"), stack);
    velk::xml::attribute prefixed("p:marca", "tab\there, line\nthere");
    prefixed.set_namespace_uri("urn:velk:p");
    signed_part.append_attribute(prefixed, stack);
    signed_part.append_node(velk::xml::element("texto", velk::xml::text("fim de linha\r\n & <sinal>")));
    signed_part.append_node(velk::xml::element("bloco", velk::xml::cdata_section("a\r\nb\rc ]]> d")));
    signed_part.append_node(velk::xml::node(velk::xml::comment("nota\r\nfinal")));
    signed_part.append_node(velk::xml::node(velk::xml::processing_instruction("alvo", "dados\r\nmais")));
    velk::xml::element other("outro", velk::xml::text("b"));
    other.set_namespace_uri("urn:velk:b");  // declared by no one: the saved text declares it here
    signed_part.append_node(std::move(other));
    root.append_node(std::move(signed_part));
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return root;
}

struct context_case {
    char const* name;
    std::function<velk::xml::element()> tree;
    char const* id_element;  // for xmlsec1: namespace URI and local name of the element with the Id
};

TEST(signer, digests_the_referenced_element_in_its_context)
{
    auto const parsed = [](char const* text) { return [text] { return parse_element(text); }; };
    context_case const cases[] = {
        {"prefixed root and element", parsed("<n:NFe xmlns:n=\"urn:velk:a\"><n:inf Id=\"A\"><n:v>1</n:v></n:inf></n:NFe>"),
         "urn:velk:a:inf"},
        {"declarations of the root, used and unused",
         parsed("<r xmlns=\"urn:velk:a\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                "xmlns:u=\"urn:velk:unused\"><inf Id=\"A\"><v xsi:type=\"t\">1</v></inf></r>"),
         "urn:velk:a:inf"},
        {"xml:lang of the root", parsed("<r xmlns=\"urn:velk:a\" xml:lang=\"pt-BR\"><inf Id=\"A\"><v>1</v></inf></r>"),
         "urn:velk:a:inf"},
        {"default namespace undeclared",
         parsed("<r xmlns=\"urn:velk:a\"><inf xmlns=\"\" Id=\"A\"><v>1</v></inf></r>"), "inf"},
        {"whitespace and a sibling after the signed element",
         parsed("<r xmlns=\"urn:velk:a\">\n  <inf Id=\"A\">\n    <v>1</v>\n  </inf>\n  <supl><q>x</q></supl>\n</r>"),
         "urn:velk:a:inf"},
        {"tree made in memory", built_in_memory, "urn:velk:a:inf"},
        // Read by the parser, so it must sign as it saves.
        {"names outside the older XML rules",
         parsed("<r xmlns=\"urn:velk:a\"><inf Id=\"A\"><v\xD1\x9D>1</v\xD1\x9D><\xD1\x9D p=\"1\"/></inf></r>"),
         "urn:velk:a:inf"},

    };
    pkcs12 const certificate = taxpayer_pkcs12();
    for (context_case const& current : cases) {
        SCOPED_TRACE(current.name);
        velk::xml::element tree = current.tree();
        core::result::stack stack;
        ASSERT_TRUE(append_and_sign(tree, "#A", certificate, stack)) << stack.to_string();
        std::string const text = saved_text(tree);
        xmlsec_result const verified = xmlsec_verify(text, current.id_element, test_certificates::instance().ca_pem());
        EXPECT_TRUE(verified.success) << verified.output << "\n" << text;
    }
}

// What the tree refuses to save, the signer refuses to sign: a tree made in
// memory can hold it, no tree read from text can.
TEST(signer, refuses_a_tree_that_cannot_be_written)
{
    velk::xml::element bad_name("nome inválido");
    velk::xml::element relative_namespace("v");
    relative_namespace.set_namespace_uri("relativo");
    for (velk::xml::element const& inside : {bad_name, relative_namespace}) {
        velk::xml::element tree = parse_element("<r><inf Id=\"A\"><v>1</v></inf></r>");
        tree.find_child("inf")->append_node(inside);
        core::result::stack stack;
        EXPECT_TRUE(velk::xml::document::save(document_of(tree), stack).empty());
        EXPECT_EQ(stack.get_value(), 3) << stack.to_string();
        stack.reset();
        EXPECT_FALSE(append_and_sign(tree, "#A", taxpayer_pkcs12(), stack));
        EXPECT_EQ(stack.get_value(), 16) << stack.to_string();
        EXPECT_EQ(contents_of(tree, "DigestValue"), "") << "the template stays unsigned";
    }
}

}  // namespace
}  // namespace velk::cryptography::xml
