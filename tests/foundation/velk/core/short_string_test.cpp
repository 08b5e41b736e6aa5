#include <velk/core/detail/short_string.hpp>

#include <gtest/gtest.h>

#include <string>

namespace velk::core {
namespace {

// Every length around the room a string has in itself, each byte distinct so
// that a byte out of place shows.
TEST(short_string, makes_the_string_the_text_makes)
{
    std::string const source = "abcdefghijklmnopqrstuvwxyz0123456789";
    for (std::size_t start : {0U, 3U}) {
        for (std::size_t size = 0; size <= 20; ++size) {
            std::string_view const text = std::string_view(source).substr(start, size);
            std::string const made = detail::short_string(text);
            EXPECT_EQ(made, std::string(text)) << "length " << size;
            EXPECT_EQ(made.size(), size);
            EXPECT_EQ(made.c_str()[size], '\0') << "length " << size;
        }
    }
}

}  // namespace
}  // namespace velk::core
