#include <support/files.hpp>
#include <support/xml_text.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/qualified_name.hpp>
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

// Everything the tree holds, one line per node, for comparing two trees.
std::string dump(element const& value, std::string const& indent = "")
{
    std::string out = indent + "<" + value.get_qualified_name() + " {" + value.get_namespace_uri() + "}";
    for (auto const& declaration : value.get_namespaces()) {
        out += " xmlns:" + declaration.get_prefix() + "=" + declaration.get_uri();
    }
    for (auto const& property : value.get_attributes()) {
        out += " " + property.get_name() + "{" + property.get_namespace_uri() + "}=" + property.get_value();
    }
    out += "\n";
    for (node const& child : value.get_node_range()) {
        if (element const* nested = child.as_element()) {
            out += dump(*nested, indent + " ");
        } else {
            std::string const contents = child.as_text()            ? child.as_text()->get_contents()
                                         : child.as_cdata_section() ? child.as_cdata_section()->get_contents()
                                         : child.as_comment()       ? child.as_comment()->get_contents()
                                                                    : child.as_processing_instruction()->get_data();
            out += indent + " #" + std::to_string(int(child.get_type())) + "[" + contents + "]\n";
        }
    }
    return out;
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
        EXPECT_EQ(dump(*first.get_root_element()), dump(*second.get_root_element()));
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

    // A namespace the parser would refuse, given without a declaration.
    element relative("a");
    relative.set_namespace_uri("relative");
    document holder;
    holder.append_node(relative, report);
    report.reset();
    EXPECT_TRUE(document::save(holder, report).empty());
    ASSERT_TRUE(report.has_failed());
    EXPECT_EQ(report.get_value(), 3);
    EXPECT_EQ(*report.top().find_argument("name"), "relative");
}

// The colon of a name is looked for a word at a time: at every length about
// a word, with the colon (or two) at each place, the split is the one the
// first colon makes, for the free functions and an element alike.
TEST(xml_names, a_name_splits_at_its_first_colon_at_any_length)
{
    for (std::size_t length = 0; length <= 24; ++length) {
        for (std::size_t at = 0; at <= length; ++at) {
            for (bool const second : {false, true}) {
                std::string name(length, 'a');
                if (at < length) {
                    name[at] = ':';
                }
                if (second && length != 0) {
                    name[length - 1] = ':';
                }
                SCOPED_TRACE(name);
                std::size_t const colon = name.find(':');
                std::string const prefix = colon == std::string::npos ? "" : name.substr(0, colon);
                std::string const local = colon == std::string::npos ? name : name.substr(colon + 1);
                EXPECT_EQ(velk::xml::prefix_of(name), prefix);
                EXPECT_EQ(velk::xml::local_part_of(name), local);
                velk::xml::element const made(name);
                EXPECT_EQ(made.get_prefix(), prefix);
                EXPECT_EQ(made.get_name(), local);
            }
        }
    }
}

// One rule for names, whoever asks: the parser reading a document, save
// writing one, an attribute being added, and those who write the tree some
// other way (the canonical form of a signature) through is_qualified_name.
TEST(xml_names, the_tree_and_the_parser_take_the_same_names)
{
    struct name_case {
        char const* name;
        bool valid;
    };
    name_case const cases[] = {
        {"NFe", true},
        {"a-b.c_1", true},
        {"p:a", true},
        {"a\xD1\x9D", true},           // U+045D, left out of the older XML rules
        {"\xD1\x9D", true},            // the same first
        {"a\xC2\xB7" "b", true},        // U+00B7 inside
        {"a\xCC\x80", true},           // a combining mark inside
        {"a\xE2\x80\xBF", true},      // U+203F inside
        {"\xF0\x90\x80\x80", true},  // U+10000
        {"1a", false},
        {"-a", false},
        {".a", false},
        {"a b", false},
        {"p:", false},
        {":a", false},
        {"p:a:b", false},
        {"p:1a", false},
        {"\xC2\xB7" "a", false},         // U+00B7 first
        {"\xCC\x80" "a", false},         // a combining mark first
        {"a\xC3\x97", false},          // U+00D7, the multiplication sign
        {"a\xEF\xBF\xBE", false},     // U+FFFE
        {"\xF3\xB0\x80\x80", false}, // U+F0000
        {"a\xC3", false},               // cut short
        {"a\xC0\x80", false},          // overlong
        {"a\xED\xA0\x80", false},     // a surrogate
    };
    testing::internal::CaptureStderr();
    for (name_case const& item : cases) {
        std::string const name = item.name;
        SCOPED_TRACE(name);
        EXPECT_EQ(is_qualified_name(name), item.valid);

        document loaded;
        stack report;
        bool const read = loaded.load(byte_array("<" + name + " xmlns:p=\"urn:p\"/>"), report);
        EXPECT_EQ(read, item.valid) << report.to_string();

        element root("r");
        root.append_namespace(namespace_id("p", "urn:p"), report);
        root.append_node(element(name));
        document written;
        written.append_node(root, report);
        report.reset();
        byte_array const saved = document::save(written, report);
        EXPECT_EQ(report.has_failed(), !item.valid) << report.to_string();
        if (item.valid) {
            EXPECT_EQ(loaded.get_root_element()->get_qualified_name(), name);
            document again;
            ASSERT_TRUE(again.load(saved, report)) << report.to_string();
        }
        report.reset();
        EXPECT_EQ(element("r").append_attribute(attribute(name, "1"), report), item.valid);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(document_round_trip, a_namespace_uri_with_an_ampersand_comes_back_as_written)
{
    document read = parse_or_fail("<a xmlns=\"http://x/?a=1&amp;b=2&#38;c=3#f&amp;g\" xmlns:p=\"urn:p&#x26;q\" "
                                  "p:v=\"&amp;\"><p:b/></a>");
    ASSERT_NE(read.get_root_element(), nullptr);
    element const& root = *read.get_root_element();
    EXPECT_EQ(root.get_namespace_uri(), "http://x/?a=1&b=2&c=3#f&g");
    ASSERT_EQ(root.get_namespaces().size(), 2u);
    EXPECT_EQ(root.get_namespaces()[1].get_uri(), "urn:p&q");
    EXPECT_EQ(root.get_attributes().front().get_namespace_uri(), "urn:p&q");
    EXPECT_EQ(root.get_attributes().front().get_value(), "&");
    EXPECT_EQ(root.find_child("b")->get_namespace_uri(), "urn:p&q");

    std::string const saved = saved_text(root);
    EXPECT_NE(saved.find("<a xmlns=\"http://x/?a=1&amp;b=2&amp;c=3#f&amp;g\" xmlns:p=\"urn:p&amp;q\""),
              std::string::npos)
        << saved;
    document const again = parse_or_fail(saved);
    ASSERT_NE(again.get_root_element(), nullptr);
    EXPECT_EQ(dump(*again.get_root_element()), dump(root));
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
        // No canonical form takes it, so nothing read so could be signed.
        {"relative namespace URI", "<a xmlns=\"relative\"/>", 1},
        {"relative namespace URI with an ampersand", "<a xmlns=\"a&amp;b&amp;c\"/>", 1},
        // libxml2 judges a prefix's URI only in its pedantic mode.
        {"relative namespace URI of a prefix", "<a xmlns:p=\"relative\" p:b=\"1\"/>", 1},
        {"namespace URI of a prefix whose colon follows a fragment", "<a><b xmlns:x=\"ur#n:x\"/></a>", 1},
        {"namespace URI that is none", "<a><b xmlns:p=\"urn:a b&amp;c&amp;d\"/></a>", 1},
        {"empty namespace URI of a prefix", "<a xmlns:p=\"\"/>", 1},
        {"one byte beyond the largest input", "<a/>" + std::string(document::largest_input - 3, ' '), 1},
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

// An element of n attributes (or declarations of prefixes), after `before`.
std::string with_many(int count, bool declarations, std::string const& before = "")
{
    std::string text = "<r>" + before + "<e";
    for (int i = 0; i < count; ++i) {
        std::string const n = std::to_string(i);
        text += declarations ? " xmlns:p" + n + "=\"urn:velk:" + n + "\"" : " a" + n + "=\"v\"";
    }
    return text + "/></r>";
}

// libxml2 spends on an element of thousands of attributes or declarations a
// time that grows with their square: beyond 256 of either, the element is
// refused, found by a count of the start tags before libxml2 parses, or by
// the parse itself.
TEST(document_load, elements_with_too_many_attributes_are_refused)
{
    struct many_case {
        char const* what;
        std::string xml;
        char const* line;  // null when the document reads
    };
    std::string const equals_everywhere = std::string(600, '=');
    many_case const cases[] = {
        {"256 attributes", with_many(256, false), nullptr},
        {"256 declarations", with_many(256, true), nullptr},
        {"257 attributes", with_many(257, false), "1"},
        {"257 declarations", with_many(257, true), "1"},
        {"20,000 attributes, on the third line", with_many(20000, false, "\n<x/>\n"), "3"},
        {"200,000 declarations", with_many(200000, true), "1"},
        {"many = in a comment, a CDATA section, an instruction, a text and a value",
         "<r><!--" + equals_everywhere + "--><![CDATA[" + equals_everywhere + "]]><?pi " + equals_everywhere + "?>" +
             equals_everywhere + "<e a='" + equals_everywhere + "' b=\">" + equals_everywhere + "\"/></r>",
         nullptr},
    };
    for (auto const& item : cases) {
        SCOPED_TRACE(item.what);
        document target;
        stack report;
        EXPECT_EQ(target.load(byte_array(item.xml), report), item.line == nullptr) << report.to_string();
        if (item.line != nullptr) {
            ASSERT_EQ(report.get_value(), 1);
            EXPECT_EQ(*report.top().find_argument("description"),
                      "Element with more than 256 attributes or namespace declarations");
            EXPECT_EQ(*report.top().find_argument("line"), item.line);
        }
    }
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
    std::vector<byte_array> expected;
    for (auto const& file : sample_files()) {
        stack report;
        document parsed;
        parsed.load(inputs.emplace_back(velk::test::read_bytes(file)), report);
        expected.push_back(document::save(parsed, report));
    }
    std::vector<int> mismatches(4, 0);
    std::vector<std::thread> threads;
    for (int& mismatch : mismatches) {
        threads.emplace_back([&] {
            for (int round = 0; round < 10 * static_cast<int>(inputs.size()); ++round) {
                stack report;
                document parsed;
                document broken;
                parsed.load(inputs[round % inputs.size()], report);
                broken.load(byte_array("<a><b></a>"), report);
                mismatch += document::save(parsed, report) != expected[round % inputs.size()];
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(mismatches, std::vector<int>(4, 0));
}

}  // namespace
