#include <support/files.hpp>
#include <support/schema.hpp>
#include <velk/xml/document.hpp>

#include <gtest/gtest.h>

namespace {

using velk::test::sample;
using velk::test::schema_dir;
using velk::test::validate_against_schema;

TEST(schema_support, reports_nothing_for_a_valid_document_and_the_line_of_a_fault)
{
    auto const xsd = schema_dir() / "nfe_v4.00.xsd";
    EXPECT_EQ(validate_against_schema(xsd, velk::test::read_bytes(sample("messages/nfe_layout4.xml"))),
              std::vector<std::string>{});

    // The same document after a trip through the tree.
    velk::core::result::stack report;
    velk::xml::document parsed;
    ASSERT_TRUE(parsed.load(velk::test::read_bytes(sample("messages/nfe_layout4.xml")), report));
    EXPECT_EQ(validate_against_schema(xsd, parsed), std::vector<std::string>{});

    auto const problems = validate_against_schema(xsd, velk::test::read_bytes(sample("messages/nfce.xml")));
    ASSERT_FALSE(problems.empty());
    EXPECT_NE(problems.front().find("line 49:"), std::string::npos) << problems.front();
    EXPECT_NE(problems.front().find("xFant"), std::string::npos) << problems.front();

    EXPECT_FALSE(validate_against_schema(xsd, velk::core::byte_array("<a>")).empty());
    EXPECT_FALSE(validate_against_schema(schema_dir() / "missing.xsd", velk::core::byte_array("<a/>")).empty());
}

}  // namespace
