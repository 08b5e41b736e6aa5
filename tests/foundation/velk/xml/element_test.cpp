#include <support/xml_text.hpp>
#include <velk/xml/element.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::test::parse_or_fail;
using velk::test::saved_text;
using namespace velk::xml;

std::vector<std::string> child_names(element const& parent)
{
    std::vector<std::string> names;
    for (node const& child : parent.get_node_range()) {
        names.push_back(child.as_element() ? child.as_element()->get_name() : "#" + std::to_string(int(child.get_type())));
    }
    return names;
}

TEST(element_value, copy_is_deep_and_independent)
{
    element original("NFe");
    original.append_node(element("infNFe", text("a")));
    element copy = original;
    copy.find_child("infNFe")->set_contents("b");
    copy.append_node(element("Signature"));

    EXPECT_EQ(original.find_child("infNFe")->get_contents(), "a");
    EXPECT_EQ(original.find_child("Signature"), nullptr);
    EXPECT_EQ(child_names(copy), (std::vector<std::string>{"infNFe", "Signature"}));

    // Assigning a part of the tree to the tree itself.
    copy = *copy.find_child("infNFe");
    EXPECT_EQ(copy.get_name(), "infNFe");
    EXPECT_EQ(copy.get_contents(), "b");
}

TEST(element_value, copy_outlives_its_document_and_move_leaves_a_usable_shell)
{
    element kept;
    {
        document parsed = parse_or_fail(R"(<a:Envelope xmlns:a="urn:a"><a:Body><r v="1">t</r></a:Body></a:Envelope>)");
        kept = *parsed.get_root_element()->find_child("Body");
    }
    EXPECT_EQ(kept.get_qualified_name(), "a:Body");
    EXPECT_EQ(kept.get_namespace_uri(), "urn:a");
    EXPECT_EQ(kept.find_child("r")->find_attribute("", "v")->get_value(), "1");

    element moved(std::move(kept));
    EXPECT_EQ(moved.find_child("r")->get_contents(), "t");
    kept = moved;  // a moved-from element takes an assignment
    EXPECT_EQ(kept.get_name(), "Body");

    document source = parse_or_fail("<x/>");
    document target(std::move(source));
    EXPECT_EQ(target.get_root_element()->get_name(), "x");
    EXPECT_EQ(source.get_root_element(), nullptr);
}

TEST(node_range, positions_survive_insert_and_erase_of_other_children)
{
    element parent("p");
    for (char const* name : {"a", "b", "c"}) {
        parent.append_node(element(name));
    }
    mutable_node_range range = parent.get_node_range();
    auto const a = range.begin();
    auto const b = std::next(a);
    auto const c = std::next(b);

    auto const x = range.insert(b, element("x"));
    EXPECT_EQ(x->as_element()->get_name(), "x");
    EXPECT_EQ(std::next(x), b);
    EXPECT_EQ(range.erase(a), x);
    auto const z = range.insert(range.end(), node(text("z")));
    EXPECT_EQ(std::next(z), range.end());
    EXPECT_EQ(b->as_element()->get_name(), "b");
    EXPECT_EQ(c->as_element()->get_name(), "c");
    EXPECT_EQ(range.erase(c), z);
    EXPECT_EQ(child_names(parent), (std::vector<std::string>{"x", "b", "#1"}));
}

TEST(element_attributes, names_are_checked_and_duplicates_refused)
{
    struct attribute_case {
        char const* name;
        int code;  // 0: accepted
    };
    attribute_case const cases[] = {
        {"Id", 0},   {"xsi:type", 0}, {"_a.b-1", 0}, {"versão", 0}, {"Id", 4},     {"", 3},      {"1a", 3},
        {"a b", 3},  {"a:", 3},       {":a", 3},     {"a:b:c", 3},  {"xmlns", 3},  {"xmlns:p", 3},
    };
    element target("infEvento");
    std::size_t accepted = 0;
    for (auto const& item : cases) {
        stack report;
        bool const appended = target.append_attribute(attribute(item.name, "v"), report);
        EXPECT_EQ(appended, item.code == 0) << item.name;
        if (item.code == 0) {
            ++accepted;
        } else {
            ASSERT_TRUE(report.has_failed()) << item.name;
            EXPECT_TRUE(report.get_category() == xml_result_category::instance());
            EXPECT_EQ(report.get_value(), item.code) << item.name;
            EXPECT_EQ(*report.top().find_argument("name"), item.name);
        }
        EXPECT_EQ(target.get_attributes().size(), accepted) << item.name;
    }
}

TEST(element_namespaces, prefixes_are_checked_and_declared_once)
{
    struct namespace_case {
        char const* prefix;
        char const* uri;
        int code;  // 0: accepted
    };
    namespace_case const cases[] = {
        {"", "urn:nfe", 0}, {"xsi", "urn:xsi", 0}, {"xsi", "urn:other", 5}, {"", "urn:other", 5},
        {"1p", "urn:p", 3}, {"xmlns", "urn:p", 3},  {"xml", "urn:p", 3},     {"p", "", 3},
        // Neither reads back nor signs: no scheme, no URI at all.
        {"q", "relative", 3}, {"q", "urn:a b", 3},
    };
    element target("NFe");
    for (auto const& item : cases) {
        stack report;
        EXPECT_EQ(target.append_namespace(namespace_id(item.prefix, item.uri), report), item.code == 0) << item.prefix;
        if (item.code != 0) {
            ASSERT_TRUE(report.has_failed()) << item.prefix << " " << item.uri;
            EXPECT_EQ(report.get_value(), item.code) << item.prefix;
            EXPECT_NE(report.top().get_arguments().size(), 0u);
        }
    }
    EXPECT_EQ(target.get_namespaces().size(), 2u);
    EXPECT_EQ(target.get_namespace_uri(), "urn:nfe");
}

TEST(element_lookup, compares_local_names_whatever_the_prefix)
{
    document parsed = parse_or_fail(R"(<s:Envelope xmlns:s="urn:s" xmlns:x="urn:x">)"
                                    R"(<s:Body x:Id="1" Id="2"><x:child>a</x:child><child>b</child></s:Body>)"
                                    R"(</s:Envelope>)");
    element const& root = *parsed.get_root_element();
    element const* body = root.find_child("Body");
    ASSERT_NE(body, nullptr);
    EXPECT_EQ(body->get_prefix(), "s");
    EXPECT_EQ(root.find_child("s:Body"), nullptr);

    element const* child = body->find_child("child");
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->get_qualified_name(), "x:child");
    EXPECT_EQ(child->get_namespace_uri(), "urn:x");
    EXPECT_EQ(child->get_contents(), "a");

    EXPECT_EQ(body->find_attribute("", "Id")->get_value(), "2");
    EXPECT_EQ(body->find_attribute("urn:x", "Id")->get_value(), "1");
    EXPECT_EQ(body->find_attribute("urn:s", "Id"), nullptr);
    EXPECT_EQ(body->find_attribute("", "missing"), nullptr);
    EXPECT_EQ(body->get_attributes()[0].get_local_name(), "Id");
    EXPECT_EQ(body->get_attributes()[0].get_prefix(), "x");
}

TEST(element_contents, joins_own_text_and_cdata_only)
{
    document parsed = parse_or_fail("<a>x<![CDATA[<y>]]><b>not mine</b>z<!--c--></a>");
    element& root = *parsed.get_root_element();
    EXPECT_EQ(root.get_contents(), "x<y>z");
    root.set_contents("only");
    EXPECT_EQ(root.get_node_range().size(), 1u);
    EXPECT_EQ(root.get_contents(), "only");
}

TEST(element_namespaces, a_part_of_a_tree_carries_its_namespace_when_saved_alone)
{
    // Built from the leaves up, as the document writers do.
    element ide("ide", text("1"));
    element inf("infNFe");
    inf.append_node(ide);
    element root("NFe");
    stack report;
    ASSERT_TRUE(root.append_namespace(namespace_id("", "urn:nfe"), report));
    root.append_node(inf);
    auto const inserted = root.get_node_range().insert(root.get_node_range().begin(), element("first"));

    element const& placed = *root.find_child("infNFe");
    EXPECT_EQ(placed.get_namespace_uri(), "urn:nfe");
    EXPECT_EQ(placed.find_child("ide")->get_namespace_uri(), "urn:nfe");
    EXPECT_EQ(inserted->as_element()->get_namespace_uri(), "urn:nfe");
    EXPECT_EQ(inf.get_namespace_uri(), "");  // the original stays as it was

    EXPECT_EQ(saved_text(root), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                "<NFe xmlns=\"urn:nfe\"><first/><infNFe><ide>1</ide></infNFe></NFe>");
    EXPECT_EQ(saved_text(placed),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<infNFe xmlns=\"urn:nfe\"><ide>1</ide></infNFe>");

    // A prefixed part, and an attribute whose prefix was declared above it.
    document parsed = parse_or_fail(R"(<s:Envelope xmlns:s="urn:s" xmlns:x="urn:x" xmlns="urn:d">)"
                                    R"(<s:Body x:a="1"><s:Fault/><d/></s:Body></s:Envelope>)");
    EXPECT_EQ(saved_text(*parsed.get_root_element()->find_child("Body")),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              R"(<s:Body xmlns:s="urn:s" xmlns:x="urn:x" x:a="1"><s:Fault/><d xmlns="urn:d"/></s:Body>)");
}

TEST(element_namespaces, a_child_made_in_place_has_the_namespace_it_would_take_when_appended)
{
    // Each child made in place beside the same child built apart and appended:
    // the unprefixed one under a default namespace, one whose prefix the
    // parent declares, one whose prefix is declared nowhere, and a child
    // under a parent of no namespace at all.
    stack report;
    element made("root");
    element appended("root");
    for (element* parent : {&made, &appended}) {
        ASSERT_TRUE(parent->append_namespace(namespace_id("", "urn:d"), report));
        ASSERT_TRUE(parent->append_namespace(namespace_id("p", "urn:p"), report));
    }
    for (char const* name : {"plain", "p:prefixed", "q:undeclared"}) {
        element& child = made.append_element(name);
        child.append_element("leaf").append_node(text("1"));
        element apart(name);
        apart.append_node(element("leaf", text("1")));
        appended.append_node(std::move(apart));
        EXPECT_EQ(child.get_qualified_name(), name);
        EXPECT_EQ(child.get_namespace_uri(), appended.find_child(child.get_name())->get_namespace_uri()) << name;
        EXPECT_EQ(child.find_child("leaf")->get_namespace_uri(),
                  appended.find_child(child.get_name())->find_child("leaf")->get_namespace_uri())
            << name;
    }
    EXPECT_EQ(made.find_child("plain")->get_namespace_uri(), "urn:d");
    EXPECT_EQ(made.find_child("prefixed")->get_namespace_uri(), "urn:p");

    element bare("bare");
    EXPECT_EQ(bare.append_element("child").get_namespace_uri(), "");
    EXPECT_EQ(child_names(bare), std::vector<std::string>{"child"});
}

// A namespace kept for the life of the process (that of NF-e) and one that is
// not: texts made in place, copied or moved, are the texts appended whole, and
// a copy of a part outlives its tree and still declares its namespace.
TEST(element_namespaces, texts_made_in_place_and_parts_copied_out_of_their_tree)
{
    for (char const* uri : {"http://www.portalfiscal.inf.br/nfe", "urn:nfe"}) {
        stack report;
        element copy("none");
        {
            element made("NFe");
            element appended("NFe");
            for (element* root : {&made, &appended}) {
                ASSERT_TRUE(root->append_namespace(namespace_id("", uri), report));
            }
            std::string const kept = "a text longer than the room kept inside a string";
            made.append_element("a").append_text(kept);
            made.append_element("b").append_text(std::string("moved"));
            appended.append_element("a").append_node(text(kept));
            appended.append_element("b").append_node(text("moved"));
            EXPECT_EQ(saved_text(made), saved_text(appended)) << uri;
            EXPECT_EQ(made.find_child("a")->get_contents(), kept);
            copy = *made.find_child("b");
        }
        EXPECT_EQ(copy.get_namespace_uri(), uri);
        EXPECT_EQ(saved_text(copy),
                  std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<b xmlns=\"") + uri + "\">moved</b>");
    }
}

}  // namespace
