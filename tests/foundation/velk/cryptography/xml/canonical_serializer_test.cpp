// The canonical serializer against libxml2's canonicaliser over the saved
// text, on trees that stress what canonical XML decides: where namespaces are
// rendered, the order of attributes, escaping, line ends, xml: attributes
// inherited, comments and processing instructions, and on the real samples.
#include <velk/cryptography/xml/detail/canonical_serializer.hpp>

#include <support/files.hpp>
#include <support/forma_canonica.hpp>
#include <support/xml_text.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/qualified_name.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>

namespace velk::cryptography::xml {
namespace {

using namespace velk::test;

// Every element of the tree as the canonicalised one, with and without
// comments, and with `excluded` left out where it lies inside (what lies
// within it is never canonicalised).
void expect_same_as_libxml2(velk::xml::element const& root, velk::xml::element const* excluded = nullptr)
{
    forma_canonica_libxml2 const reference(root);
    std::vector<velk::xml::element const*> const inside_excluded =
        excluded == nullptr ? std::vector<velk::xml::element const*>() : elementos_de(*excluded);
    for (velk::xml::element const* target : elementos_de(root)) {
        if (std::find(inside_excluded.begin(), inside_excluded.end(), target) != inside_excluded.end()) {
            continue;
        }
        for (bool const comments : {false, true}) {
            SCOPED_TRACE(target->get_qualified_name() + (comments ? " with comments" : ""));
            std::string const expected = reference.de(*target, excluded, comments);
            ASSERT_EQ(expected.rfind("falha", 0), std::string::npos) << expected;
            EXPECT_EQ(forma_canonica_propria(root, *target, excluded, comments), expected);
        }
    }
}

velk::xml::element with_attribute(velk::xml::element value, std::string const& name, std::string const& text,
                                  std::string const& uri = "")
{
    core::result::stack stack;
    velk::xml::attribute property(name, text);
    property.set_namespace_uri(uri);
    EXPECT_TRUE(value.append_attribute(property, stack)) << stack.to_string();
    return value;
}

// Trees made in memory hold what no parser gives: carriage returns in texts
// and CDATA sections, namespaces no one declares, tabs and line ends in
// attribute values. The saved text escapes or declares them, and the
// canonical form is that of the text read back.
velk::xml::element built_in_memory()
{
    core::result::stack stack;
    velk::xml::element root("lote");
    root.append_namespace(velk::xml::namespace_id("", "urn:velk:a"), stack);
    velk::xml::element inf = with_attribute(velk::xml::element("inf"), "p:marca", "tab\there,\nline\r\nend", "urn:velk:p");
    inf = with_attribute(std::move(inf), "Id", "A&B<\"'>");
    inf.append_node(velk::xml::element("texto", velk::xml::text("fim\r\n & <sinal> \"'\r")));
    inf.append_node(velk::xml::element("bloco", velk::xml::cdata_section("a\r\nb\rc ]]> d & <e>\r")));
    inf.append_node(velk::xml::node(velk::xml::comment("nota\r\nfinal\r")));
    inf.append_node(velk::xml::node(velk::xml::processing_instruction("alvo", "dados\r\nmais\r")));
    inf.append_node(velk::xml::node(velk::xml::processing_instruction("vazio", "")));
    velk::xml::element other("outro", velk::xml::text("b"));
    other.set_namespace_uri("urn:velk:b");
    velk::xml::element prefixed("q:dentro", velk::xml::text("c"));
    prefixed.set_namespace_uri("urn:velk:q");
    other.append_node(std::move(prefixed));
    other.append_node(velk::xml::element("neto"));
    inf.append_node(std::move(other));
    root.append_node(std::move(inf));
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return root;
}

TEST(canonical_serializer, writes_what_libxml2_writes_from_the_saved_text)
{
    struct tree_case {
        char const* name;
        std::function<velk::xml::element()> tree;
    };
    auto const parsed = [](char const* text) { return [text] { return parse_element(text); }; };
    tree_case const cases[] = {
        {"declarations used and unused, attributes out of order",
         parsed("<r xmlns='urn:a' xmlns:p='urn:p' xmlns:u='urn:unused'>"
                "<inf Id='A' b='2' a='1' p:z='3' p:a='4'><v>1</v></inf></r>")},
        {"a prefix bound again, to another URI and to the same",
         parsed("<p:r xmlns:p='urn:1'><p:inf><p:v xmlns:p='urn:2'><p:w xmlns:p='urn:2'/></p:v>"
                "<p:x xmlns:p='urn:1'/></p:inf></p:r>")},
        {"the default namespace undeclared and declared again",
         parsed("<r xmlns='urn:a'><inf xmlns=''><v xmlns='urn:a'><w xmlns=''/><x/></v></inf></r>")},
        {"a default namespace first declared below the root",
         parsed("<r><inf xmlns=''><v xmlns='urn:v'><w xmlns=''/></v></inf></r>")},
        {"xml: attributes of the ancestors",
         parsed("<r xml:lang='pt' xml:space='preserve'><m xml:lang='en' xml:base='urn:b'>"
                "<inf xml:space='default' a='1'><v xml:lang='x'/></inf></m></r>")},
        {"attributes ordered by namespace URI, not by prefix",
         parsed("<r xmlns:z='urn:a' xmlns:a='urn:b'><inf a:x='1' z:y='2' z:b='3' c='4' B='5'><v z:a='1' a:a='2'/>"
                "</inf></r>")},
        {"two prefixes of one URI",
         parsed("<r xmlns:a='urn:s' xmlns:b='urn:s'><inf b:y='1' a:x='2'><a:v b:z='3'/></inf></r>")},
        {"prefixes declared where they are used",
         parsed("<r><inf xmlns:p='urn:p' p:a='1'><p:v xmlns:q='urn:q' q:b='2'/><w xmlns:p='urn:p2' p:c='3'/></inf></r>")},
        {"escapes in texts and attribute values",
         parsed("<r><inf a='&amp; &lt; &gt; &quot; &apos; &#9; &#10; &#13; x'>&amp; &lt; &gt; \" ' &#13; &#9;\n"
                "</inf></r>")},
        {"escapes in the one text of bare elements, and a bare element named beyond ASCII",
         parsed("<r><inf><v>&amp;x &lt; &gt; &#13; \" '</v><w>nada a escapar, mais de oito bytes</w>"
                "<x>fim &amp;</x><y>&#13;</y><z></z><v\xD1\x9D>\xC3\xA7</v\xD1\x9D></inf></r>")},
        {"CDATA sections", parsed("<r><inf><![CDATA[a]]]]><![CDATA[>b & <c>\nd]]><v><![CDATA[]]></v></inf></r>")},
        {"comments and processing instructions",
         parsed("<r><!--antes--><inf><!-- c1 --><?t d  e?><?e?><v/><!--c2--></inf><?depois x?></r>")},
        {"empty elements and whitespace", parsed("<r>\n <inf>\n  <v/>\n  <w></w>\n </inf>\n</r>")},
        {"namespace URIs with ampersands",
         parsed("<r xmlns='urn:a?x=1&amp;y=2&#38;z=3'><inf xmlns:p='urn:p&amp;q' p:v='1'/></r>")},
        {"text beyond ASCII", parsed("<r><inf a='ção' \xD1\x9D='1'>ç€\xF0\x9D\x84\x9E<v\xD1\x9D/></inf></r>")},
        {"bare children below a prefixed parent of the default's URI, and below one in no namespace",
         parsed("<r xmlns='urn:a' xmlns:p='urn:a'><p:inf><v><w/></v></p:inf><m xmlns=''><n><o/></n></m>"
                "<q:s xmlns:q='urn:q'><t><u/></t></q:s></r>")},
        {"made in memory", built_in_memory},
    };
    for (tree_case const& current : cases) {
        SCOPED_TRACE(current.name);
        expect_same_as_libxml2(current.tree());
    }
}

TEST(canonical_serializer, leaves_out_the_excluded_subtree)
{
    velk::xml::element const root = parse_element(
        "<NFe xmlns='urn:nfe'><infNFe Id='A'><v>1</v></infNFe>"
        "<Signature xmlns='http://www.w3.org/2000/09/xmldsig#'><SignedInfo/></Signature><infNFeSupl/></NFe>");
    expect_same_as_libxml2(root, root.find_child("Signature"));
}

// The real documents, events and answers: their signed elements, each
// SignedInfo, the root without its signature, and every element near the
// root.
TEST(canonical_serializer, writes_the_samples_as_libxml2)
{
    for (char const* folder : {"messages", "signed", "soap"}) {
        for (auto const& file : std::filesystem::directory_iterator(sample(folder))) {
            SCOPED_TRACE(file.path().filename().string());
            velk::xml::element const root = parse_element(read_text(file.path()));
            forma_canonica_libxml2 const reference(root);
            velk::xml::element const* signature = root.find_child("Signature");
            std::size_t compared = 0;
            std::vector<velk::xml::element const*> const elements = elementos_de(root);
            for (std::size_t index = 0; index < elements.size(); ++index) {
                velk::xml::element const& target = *elements[index];
                if (index >= 12 && target.find_attribute("", "Id") == nullptr && target.get_name() != "SignedInfo") {
                    continue;
                }
                SCOPED_TRACE(target.get_qualified_name());
                velk::xml::element const* excluded = &target == &root ? signature : nullptr;
                std::string const expected = reference.de(target, excluded, false);
                ASSERT_EQ(expected.rfind("falha", 0), std::string::npos) << expected;
                EXPECT_EQ(forma_canonica_propria(root, target, excluded, false), expected);
                ++compared;
            }
            EXPECT_GT(compared, 0U);
        }
    }
}

TEST(canonical_serializer, writes_a_replacement_in_place_of_the_children)
{
    velk::xml::element const root = parse_element(
        "<Signature xmlns='http://www.w3.org/2000/09/xmldsig#'><SignedInfo><Reference URI='#A'>"
        "<DigestValue>antigo<x/></DigestValue></Reference></SignedInfo></Signature>");
    velk::xml::element const& signed_info = *root.find_child("SignedInfo");
    velk::xml::element const& digest = *signed_info.find_child("Reference")->find_child("DigestValue");
    std::string const value = "a&b<c>";
    detail::canonical_serializer::replacement const replaced[] = {{&digest, &value}};
    velk::xml::element const* const ancestors[] = {&root};
    std::string canonical;
    core::result::stack stack;
    detail::canonical_serializer serializer;
    ASSERT_TRUE(serializer.write({ancestors, signed_info, nullptr, replaced, false},
                                 [&canonical](std::string_view piece) { canonical.append(piece); }, stack));
    EXPECT_EQ(canonical, "<SignedInfo xmlns=\"http://www.w3.org/2000/09/xmldsig#\"><Reference URI=\"#A\">"
                         "<DigestValue>a&amp;b&lt;c&gt;</DigestValue></Reference></SignedInfo>");
}

// Names and texts are copied and checked a lane of 16 bytes at a time where
// they fit and byte by byte where not: every length about the lane, with a
// byte to escape or a character no name takes at each place, goes out alike.
TEST(canonical_serializer, writes_names_and_texts_of_every_length_alike)
{
    std::string const name_characters = "abcdefghij-KLMNOPQRST.uvwxyz_0123456789abcdefghij";
    std::string const escaped = "&<>\r";
    velk::xml::element root("r");
    for (std::size_t length = 1; length <= 40; ++length) {
        std::string const name = name_characters.substr(0, length);
        velk::xml::element wrapper(name);
        for (std::size_t at : {length, std::size_t{0}, length / 2, length - 1}) {
            std::string contents(length, 'x');
            if (at < length) {
                contents[at] = escaped[(length + at) % escaped.size()];
            }
            wrapper.append_node(velk::xml::element(name, velk::xml::text(contents)));
        }
        wrapper.append_node(velk::xml::element(name, velk::xml::text("")));
        root.append_node(std::move(wrapper));
    }
    expect_same_as_libxml2(root);

    for (std::size_t length = 1; length <= 20; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            for (char const odd : {' ', '$', '9', '-', ':', '\xC3'}) {
                std::string name = name_characters.substr(0, length);
                name[at] = odd;
                SCOPED_TRACE(name);
                core::result::stack stack;
                detail::canonical_serializer serializer;
                bool const written = serializer.write({{}, velk::xml::element(name)}, [](std::string_view) {}, stack);
                EXPECT_EQ(written, velk::xml::is_qualified_name(name));
            }
        }
    }
}

// A large document goes out in pieces, and the pieces make the whole.
TEST(canonical_serializer, hands_a_large_document_over_in_pieces)
{
    velk::xml::element root("r");
    for (int item = 0; item < 3000; ++item) {
        root.append_node(velk::xml::element("item", velk::xml::text("valor " + std::to_string(item))));
    }
    std::string canonical;
    std::size_t pieces = 0;
    core::result::stack stack;
    detail::canonical_serializer serializer;
    ASSERT_TRUE(serializer.write({{}, root},
                                 [&](std::string_view piece) {
                                     canonical.append(piece);
                                     ++pieces;
                                 },
                                 stack));
    EXPECT_GT(pieces, 1U);
    EXPECT_EQ(canonical, forma_canonica_libxml2(root).de(root, nullptr, false));
}

}  // namespace
}  // namespace velk::cryptography::xml
