#include "xml_test_helpers.hpp"

#include <support/files.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace {

using velk::core::byte_array;
using velk::core::result::stack;
using velk::test::parse_or_fail;
using velk::test::saved_text;
using namespace velk::xml;

constexpr char const* declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

void expect_same_tree(element const& expected, element const& actual, std::string const& where)
{
    std::string const here = where + "/" + expected.get_qualified_name();
    ASSERT_EQ(expected.get_qualified_name(), actual.get_qualified_name()) << here;
    EXPECT_EQ(expected.get_namespace_uri(), actual.get_namespace_uri()) << here;
    ASSERT_EQ(expected.get_namespaces().size(), actual.get_namespaces().size()) << here;
    for (std::size_t i = 0; i < expected.get_namespaces().size(); ++i) {
        EXPECT_EQ(expected.get_namespaces()[i].get_prefix(), actual.get_namespaces()[i].get_prefix()) << here;
        EXPECT_EQ(expected.get_namespaces()[i].get_uri(), actual.get_namespaces()[i].get_uri()) << here;
    }
    ASSERT_EQ(expected.get_attributes().size(), actual.get_attributes().size()) << here;
    for (std::size_t i = 0; i < expected.get_attributes().size(); ++i) {
        auto const& left = expected.get_attributes()[i];
        auto const& right = actual.get_attributes()[i];
        EXPECT_EQ(left.get_name(), right.get_name()) << here;
        EXPECT_EQ(left.get_value(), right.get_value()) << here;
        EXPECT_EQ(left.get_namespace_uri(), right.get_namespace_uri()) << here;
    }
    auto const left = expected.get_node_range();
    auto const right = actual.get_node_range();
    ASSERT_EQ(left.size(), right.size()) << here;
    for (auto l = left.begin(), r = right.begin(); l != left.end(); ++l, ++r) {
        ASSERT_EQ(l->get_type(), r->get_type()) << here;
        if (l->as_element()) {
            expect_same_tree(*l->as_element(), *r->as_element(), here);
        } else if (l->as_text()) {
            EXPECT_EQ(l->as_text()->get_contents(), r->as_text()->get_contents()) << here;
        } else if (l->as_cdata_section()) {
            EXPECT_EQ(l->as_cdata_section()->get_contents(), r->as_cdata_section()->get_contents()) << here;
        } else if (l->as_comment()) {
            EXPECT_EQ(l->as_comment()->get_contents(), r->as_comment()->get_contents()) << here;
        } else {
            EXPECT_EQ(l->as_processing_instruction()->get_target(), r->as_processing_instruction()->get_target());
            EXPECT_EQ(l->as_processing_instruction()->get_data(), r->as_processing_instruction()->get_data());
        }
    }
}

std::vector<std::filesystem::path> sample_files()
{
    std::vector<std::filesystem::path> files;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(velk::test::sample(""))) {
        if (entry.path().extension() == ".xml") {
            files.push_back(entry.path());
        }
    }
    return files;
}

TEST(document_round_trip, every_sample_keeps_its_tree_through_save_and_load)
{
    auto const files = sample_files();
    ASSERT_GE(files.size(), 18u);
    for (auto const& file : files) {
        SCOPED_TRACE(file.filename().string());
        stack report;
        document first;
        ASSERT_TRUE(first.load(velk::test::read_bytes(file), report)) << report.to_string();
        byte_array const saved = document::save(first, report);
        document second;
        ASSERT_TRUE(second.load(saved, report)) << report.to_string();
        expect_same_tree(*first.get_root_element(), *second.get_root_element(), "");
        EXPECT_EQ(document::save(second, report), saved);
        EXPECT_EQ(saved.to_string().rfind(declaration, 0), 0u);
    }
}

TEST(document_round_trip, blanks_cdata_comments_and_instructions_stay_as_written)
{
    document parsed = parse_or_fail("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<!-- outside -->\n"
                                    "<env:Envelope xmlns:env=\"urn:e\">\n  <env:Header/>\n  <q><![CDATA[a<b]]></q>"
                                    "<!-- in --><?pi data?>\xE9</env:Envelope>\n");
    element const& root = *parsed.get_root_element();
    auto const children = root.get_node_range();
    ASSERT_EQ(children.size(), 7u);
    EXPECT_EQ(children.begin()->as_text()->get_contents(), "\n  ");
    EXPECT_EQ(root.find_child("q")->get_node_range().begin()->as_cdata_section()->get_contents(), "a<b");
    EXPECT_EQ(saved_text(parsed), std::string(declaration) +
                                      "<env:Envelope xmlns:env=\"urn:e\">\n  <env:Header/>\n  <q><![CDATA[a<b]]></q>"
                                      "<!-- in --><?pi data?>\xC3\xA9</env:Envelope>");
}

TEST(document_save, escapes_text_attributes_and_cdata)
{
    element root("t", text("a&b<c>d\re\"'\t\n"));
    stack report;
    ASSERT_TRUE(root.append_attribute(attribute("v", "a&<>\"'\t\n\r"), report));
    root.append_node(cdata_section("x]]>y]]>"));
    root.append_node(element("e"));
    document holder;
    ASSERT_TRUE(holder.append_node(std::move(root), report));

    std::string const text = saved_text(holder);
    EXPECT_EQ(text, std::string(declaration) +
                        "<t v=\"a&amp;&lt;>&quot;'&#9;&#10;&#13;\">a&amp;b&lt;c&gt;d&#13;e\"'\t\n"
                        "<![CDATA[x]]]]><![CDATA[>y]]]]><![CDATA[>]]><e/></t>");

    document again = parse_or_fail(text);
    element const& read = *again.get_root_element();
    EXPECT_EQ(read.find_attribute("", "v")->get_value(), "a&<>\"'\t\n\r");
    EXPECT_EQ(read.get_contents(), "a&b<c>d\re\"'\t\nx]]>y]]>");
}

TEST(document_save, refuses_a_missing_root_and_bad_names)
{
    struct save_case {
        char const* child_name;  // null: no root at all
        int code;
    };
    save_case const cases[] = {{nullptr, 7}, {"", 3}, {"bad name", 3}, {"p:", 3}};
    for (auto const& item : cases) {
        document target;
        stack report;
        if (item.child_name != nullptr) {
            element root("root");
            root.append_node(element(item.child_name));
            target.append_node(root, report);
        }
        EXPECT_TRUE(document::save(target, report).empty());
        ASSERT_TRUE(report.has_failed());
        EXPECT_EQ(report.get_value(), item.code);
        EXPECT_EQ(report.size(), 1u);
    }

    document full = parse_or_fail("<a/>");
    stack report;
    EXPECT_FALSE(full.append_node(element("b"), report));
    EXPECT_EQ(report.get_value(), 6);
}

std::string nested(std::size_t depth)
{
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) {
        text += "<a>";
    }
    for (std::size_t i = 0; i < depth; ++i) {
        text += "</a>";
    }
    return text;
}

TEST(document_load, hostile_and_malformed_input_fails_cleanly)
{
    struct hostile_case {
        char const* what;
        std::string xml;
        int code;
    };
    std::string const laughs = R"(<?xml version="1.0"?><!DOCTYPE lolz [<!ENTITY lol "lol">)"
                               R"(<!ENTITY lol2 "&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;">)"
                               R"(<!ENTITY lol3 "&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;">)"
                               R"(<!ENTITY lol4 "&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;">)"
                               R"(]><lolz>&lol4;&lol4;&lol4;&lol4;</lolz>)";
    hostile_case const cases[] = {
        {"mismatched tags", "<a><b></a>", 1},
        {"unclosed tag", "<a>\n<b>\n", 1},
        {"empty input", "", 1},
        {"text only", "hello", 1},
        {"two roots", "<a/><b/>", 1},
        {"undeclared entity", "<a>&xxe;</a>", 1},
        {"undeclared prefix", "<p:a/>", 1},
        {"invalid UTF-8", "<a>\xFF\xFE</a>", 1},
        {"entity bomb", laughs, 2},
        {"external entity", R"(<!DOCTYPE a [<!ENTITY xxe SYSTEM "file:///etc/passwd">]><a>&xxe;</a>)", 2},
        {"external DTD", R"(<!DOCTYPE a SYSTEM "http://127.0.0.1:9/a.dtd"><a/>)", 2},
        {"parameter entity", R"(<!DOCTYPE a [<!ENTITY % p SYSTEM "file:///etc/passwd"> %p;]><a/>)", 2},
        {"bare DOCTYPE", "<!DOCTYPE a><a/>", 2},
        {"DOCTYPE after the root", "<a/><!DOCTYPE a>", 1},
        {"very deep nesting", nested(100000), 1},
    };
    testing::internal::CaptureStderr();
    for (auto const& item : cases) {
        SCOPED_TRACE(item.what);
        document target = parse_or_fail("<kept/>");
        stack report;
        EXPECT_FALSE(target.load(byte_array(item.xml), report));
        ASSERT_TRUE(report.has_failed());
        EXPECT_EQ(report.size(), 1u);
        EXPECT_TRUE(report.get_category() == xml_result_category::instance());
        EXPECT_EQ(report.get_value(), item.code) << report.to_string();
        if (item.code == 1) {
            EXPECT_FALSE(report.top().find_argument("description")->empty());
            EXPECT_NE(report.top().find_argument("line"), nullptr);
        }
        EXPECT_EQ(report.to_string().find("root:"), std::string::npos);
        EXPECT_EQ(target.get_root_element()->get_name(), "kept");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(document_load, malformed_input_reports_libxml2_message_and_line)
{
    document target;
    stack report;
    EXPECT_FALSE(target.load(byte_array("<a>\n<b>\n</a>"), report));
    EXPECT_EQ(*report.top().find_argument("line"), "3");
    EXPECT_EQ(*report.top().find_argument("description"), "Opening and ending tag mismatch: b line 2 and a");
}

TEST(document_load, several_threads_parse_and_save_at_once)
{
    std::vector<byte_array> inputs;
    for (auto const& file : sample_files()) {
        inputs.push_back(velk::test::read_bytes(file));
    }
    std::vector<std::string> expected;
    for (auto const& input : inputs) {
        stack report;
        document parsed;
        parsed.load(input, report);
        expected.push_back(document::save(parsed, report).to_string());
    }
    std::vector<int> mismatches(4, 0);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < mismatches.size(); ++t) {
        threads.emplace_back([&, t] {
            for (int round = 0; round < 10; ++round) {
                for (std::size_t i = 0; i < inputs.size(); ++i) {
                    stack report;
                    document parsed;
                    parsed.load(inputs[i], report);
                    document broken;
                    broken.load(byte_array("<a><b></a>"), report);
                    stack save_report;
                    mismatches[t] += document::save(parsed, save_report).to_string() != expected[i];
                }
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(mismatches, std::vector<int>(4, 0));
}

}  // namespace
