#include <support/files.hpp>
#include <support/xml_text.hpp>
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <openssl/sha.h>

#include <filesystem>
#include <map>
#include <string>

namespace {

using velk::core::byte_array;
using velk::core::result::stack;
using namespace velk::xml;

std::string sha1_base64(byte_array const& bytes)
{
    unsigned char digest[SHA_DIGEST_LENGTH];
    SHA1(bytes.data(), bytes.size(), digest);
    unsigned char encoded[4 * ((SHA_DIGEST_LENGTH + 2) / 3) + 1];
    int const length = EVP_EncodeBlock(encoded, digest, SHA_DIGEST_LENGTH);
    return std::string(reinterpret_cast<char const*>(encoded), static_cast<std::size_t>(length));
}

// Finds the element named `name` below `scope`, collecting the namespace
// declarations in force where it stands (inner ones win).
element const* find_in_scope(element const& scope, std::string const& name, std::map<std::string, std::string>& in_scope)
{
    auto const outer = in_scope;
    for (auto const& declaration : scope.get_namespaces()) {
        in_scope[declaration.get_prefix()] = declaration.get_uri();
    }
    if (scope.get_name() == name) {
        return &scope;
    }
    for (node const& child : scope.get_node_range()) {
        if (element const* nested = child.as_element()) {
            if (element const* found = find_in_scope(*nested, name, in_scope)) {
                return found;
            }
        }
    }
    in_scope = outer;
    return nullptr;
}

std::string canonical_digest(element const& root)
{
    stack report;
    document alone;
    alone.append_node(root, report);
    byte_array const canonical = canonicalize(document::save(alone, report), {}, report);
    EXPECT_FALSE(report.has_failed()) << report.to_string();
    return sha1_base64(canonical);
}

TEST(canonicalize, signed_events_reproduce_their_digest)
{
    int checked = 0;
    for (auto const& entry : std::filesystem::directory_iterator(velk::test::sample("signed"))) {
        SCOPED_TRACE(entry.path().filename().string());
        document const signed_request = velk::test::parse_or_fail(velk::test::read_text(entry.path()));
        std::map<std::string, std::string> in_scope;
        element const* signed_part = find_in_scope(*signed_request.get_root_element(), "infEvento", in_scope);
        ASSERT_NE(signed_part, nullptr);
        std::map<std::string, std::string> unused;
        element const* digest = find_in_scope(*signed_request.get_root_element(), "DigestValue", unused);
        ASSERT_NE(digest, nullptr);

        // What a signature reference sees: the element with every namespace in
        // scope where it stands (a prefix it declares itself is refused here).
        element with_scope = *signed_part;
        for (auto const& [prefix, uri] : in_scope) {
            stack ignored;
            with_scope.append_namespace(namespace_id(prefix, uri), ignored);
        }
        EXPECT_EQ(canonical_digest(with_scope), digest->get_contents());
        // A plain copy declares the one namespace it uses, which here is all
        // that is in scope.
        EXPECT_EQ(canonical_digest(*signed_part), digest->get_contents());
        ++checked;
    }
    EXPECT_EQ(checked, 5);
}

TEST(canonicalize, writes_canonical_xml_1_0)
{
    struct canonical_case {
        char const* input;
        bool with_comments;
        char const* expected;
    };
    canonical_case const cases[] = {
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a b=\"2\" a=\"1\" xmlns=\"urn:a\"><c/></a>", false,
         R"(<a xmlns="urn:a" a="1" b="2"><c></c></a>)"},
        {"<a><![CDATA[<&>]]>\r\n<!--x--></a>", false, "<a>&lt;&amp;&gt;\n</a>"},
        {"<a><!--x--></a>", true, "<a><!--x--></a>"},
        {"<a v=\"&#9;&#13;\"/>", false, "<a v=\"&#x9;&#xD;\"></a>"},
        // A declaration is written as an attribute, its URI escaped alike.
        {"<a xmlns=\"urn:a?x=1&#38;y=2\"/>", false, R"(<a xmlns="urn:a?x=1&amp;y=2"></a>)"},
    };
    for (auto const& item : cases) {
        stack report;
        byte_array const canonical = canonicalize(byte_array(item.input), {item.with_comments}, report);
        EXPECT_FALSE(report.has_failed()) << report.to_string();
        EXPECT_EQ(canonical.to_string(), item.expected) << item.input;
    }
}

TEST(canonicalize, refuses_what_the_parser_refuses)
{
    struct failure_case {
        char const* input;
        int code;
    };
    failure_case const cases[] = {
        {"<a>", 1},
        {R"(<!DOCTYPE a [<!ENTITY e SYSTEM "file:///etc/passwd">]><a>&e;</a>)", 2},
        {R"(<a xmlns="relative"/>)", 1},  // which no canonical form takes
    };
    testing::internal::CaptureStderr();
    for (auto const& item : cases) {
        stack report;
        EXPECT_TRUE(canonicalize(byte_array(item.input), {}, report).empty());
        ASSERT_TRUE(report.has_failed()) << item.input;
        EXPECT_EQ(report.get_value(), item.code) << report.to_string();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
