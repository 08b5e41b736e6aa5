#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

#include <support/xml_text.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/xml/document.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

namespace sefaz_data = velk::erp::tarn::nfe::sefaz_data;

TEST(leitura, paths_take_their_first_occurrence_and_only_wanted_paths_are_found)
{
    auto const document = velk::test::parse_or_fail(
        "<ret xmlns:p=\"urn:x\"><p:a><b>1</b><b>2</b></p:a><a><b>3</b><c>4</c></a><d>5</d><x><y>6</y></x></ret>");
    auto const found = sefaz_data::find_elements_by_path(*document.get_root_element(),
                                                         {"a/b", "a/c", "d", "a/b", "z", "x"});
    ASSERT_EQ(found.size(), 4u);
    EXPECT_EQ(sefaz_data::lookup(found, "a/b")->get_contents(), "1") << "prefixes never matter; first one wins";
    EXPECT_EQ(sefaz_data::lookup(found, "a/c")->get_contents(), "4") << "looked for in a later sibling too";
    EXPECT_EQ(sefaz_data::lookup(found, "d")->get_contents(), "5");
    EXPECT_EQ(sefaz_data::lookup(found, "x")->get_name(), "x");
    EXPECT_EQ(sefaz_data::lookup(found, "x/y"), nullptr) << "a path not asked for is never in the map";
    EXPECT_EQ(sefaz_data::lookup(found, "z"), nullptr);

    // A path that ends where another goes on: both found, the longer one
    // under a later element when the first has none.
    auto const nested = sefaz_data::find_elements_by_path(*document.get_root_element(), {"a", "a/c", "x", "x/y"});
    ASSERT_EQ(nested.size(), 4u);
    EXPECT_EQ(sefaz_data::lookup(nested, "a")->get_prefix(), "p");
    EXPECT_EQ(sefaz_data::lookup(nested, "a/c")->get_contents(), "4");
    EXPECT_EQ(sefaz_data::lookup(nested, "x/y")->get_contents(), "6");

    auto const& root = *document.get_root_element();
    ASSERT_NE(sefaz_data::find_child_element(root, "a"), nullptr);
    EXPECT_EQ(sefaz_data::find_child_element(root, "a")->get_prefix(), "p");
    EXPECT_EQ(sefaz_data::find_child_element(root, "b"), nullptr) << "direct children only";
}

TEST(leitura, values_read_with_the_reports_of_the_frame)
{
    auto const document = velk::test::parse_or_fail("<r><cStat></cStat><tMed>12345678901234567</tMed><x>texto</x></r>");
    auto const found = sefaz_data::find_elements_by_path(*document.get_root_element(), {"cStat", "tMed", "x", "falta"});

    velk::core::result::stack stack;
    int status = 9;
    EXPECT_TRUE(sefaz_data::read_required(sefaz_data::lookup(found, "cStat"), "r/cStat", status, stack));
    EXPECT_EQ(status, 0) << "an empty number reads as 0";

    std::string text;
    EXPECT_TRUE(sefaz_data::read_required(sefaz_data::lookup(found, "x"), "r/x", text, stack));
    EXPECT_EQ(text, "texto");

    velk::core::optional<short> absent;
    EXPECT_TRUE(sefaz_data::read_optional(sefaz_data::lookup(found, "falta"), "r/falta", absent, stack));
    EXPECT_FALSE(absent.has_value());

    velk::core::optional<short> medium;
    EXPECT_FALSE(sefaz_data::read_optional(sefaz_data::lookup(found, "tMed"), "r/tMed", medium, stack));
    ASSERT_EQ(stack.size(), 2u);
    EXPECT_TRUE(stack.begin()->get_category() == velk::core::converter_result_category::instance());
    EXPECT_EQ(stack.begin()->get_value(), 2);
    EXPECT_EQ(stack.get_value(), 2);
    EXPECT_EQ(*stack.top().find_argument("element-name"), "r/tMed");
    EXPECT_EQ(*stack.top().find_argument("element-value"), "12345678901234567");

    EXPECT_FALSE(sefaz_data::read_required(sefaz_data::lookup(found, "falta"), "r/falta", status, stack));
    ASSERT_EQ(stack.size(), 1u) << "a missing element replaces the stack";
    EXPECT_EQ(stack.get_value(), 1);
    EXPECT_EQ(*stack.top().find_argument("element-name"), "r/falta");
}

}  // namespace
