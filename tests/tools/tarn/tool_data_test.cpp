// The data installed with tarn is the shared public data, byte for byte.
#include "tarn_authority.hpp"

#include <support/files.hpp>

#include <gtest/gtest.h>

namespace {

using namespace velk::test;

TEST(tool_data, copies_of_the_public_tables_and_official_schemas)
{
    EXPECT_EQ(read_text(tarn_data() / "sefaz-webservices.json"),
              read_text(shared_dir() / "reference" / "sefaz-webservices.json"));
    int schemas = 0;
    for (auto const& entry : std::filesystem::directory_iterator(tarn_data() / "schemas")) {
        SCOPED_TRACE(entry.path().filename().string());
        EXPECT_EQ(read_text(entry.path()), read_text(schema_dir() / entry.path().filename()));
        ++schemas;
    }
    EXPECT_GT(schemas, 50);
}

}  // namespace
