#include <velk/core/text_formatter.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

using velk::core::text_formatter;

struct format_case {
    char const* format;
    long long value;
    char const* expected;
};

class formatter_params : public testing::TestWithParam<format_case> {};

TEST_P(formatter_params, writes_the_number_or_the_formatter_failure_text)
{
    auto const& row = GetParam();
    EXPECT_EQ(text_formatter::format(row.format, static_cast<int>(row.value)), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    text_formatter, formatter_params,
    testing::Values(format_case{"{0}", 1, "1"}, format_case{"{0}", -42, "-42"}, format_case{"{0}", 0, "0"},
                    format_case{"{0:16}", 255, "FF"}, format_case{"{0:2|8}", 5, "00000101"},
                    format_case{"{0:36}", 35, "Z"}, format_case{"{0: 1 6 | 4 }", 255, "00FF"},
                    format_case{"{0:|6}", -7, "-000007"}, format_case{"{0:||2}", 123, "<0: Invalid value>"},
                    format_case{"{0:||0}", 123, "123"}, format_case{"{0:||3}", -12, "-12"},
                    format_case{"{0:||2}", -12, "<0: Invalid value>"}, format_case{"{0:1}", 3, "<0: Invalid param>"},
                    format_case{"{0:37}", 3, "<0: Invalid param>"}, format_case{"{0:-10}", 3, "<0: Invalid param>"},
                    format_case{"{0:a}", 3, "<0: Parameter parser error>"},
                    format_case{"{0:10|x}", 3, "<0: Parameter parser error>"},
                    format_case{"{0:1|2|3|4}", 3, "<0: Parameter parser error>"},
                    format_case{"{0:00000000000000010}", 3, "<0: Parameter parser error>"},
                    format_case{"valor {0} e {0}", 7, "valor 7 e 7"}, format_case{"sem marcador", 7, "sem marcador"},
                    format_case{"{1}", 7, "{1}"}));

TEST(text_formatter, default_maximum_length_follows_the_width_of_the_value)
{
    // Base 2 of the largest 32-bit value needs 31 digits, of the largest
    // 64-bit value 63: both fit their default maximum (32 and 64).
    EXPECT_EQ(text_formatter::format("{0:2}", std::numeric_limits<std::int32_t>::max()), std::string(31, '1'));
    EXPECT_EQ(text_formatter::format("{0:2}", std::numeric_limits<std::int64_t>::max()), std::string(63, '1'));
    // A 32-bit value asked for 40 digits exceeds its default maximum of 32.
    EXPECT_EQ(text_formatter::format("{0:10|40}", 1), "<0: Invalid value>");
    EXPECT_EQ(text_formatter::format("{0:10|40}", 1LL), std::string(39, '0') + "1");
    EXPECT_EQ(text_formatter::format("{0}", std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(text_formatter::format("{0}", std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(text_formatter, parser_exposes_its_placeholders)
{
    auto formatter = text_formatter::parser("a {0:16|2} b {name}");
    ASSERT_EQ(formatter.get_arguments().size(), 2u);
    EXPECT_EQ(formatter.get_arguments()[0].get_name(), "0");
    EXPECT_EQ(formatter.get_arguments()[0].get_params(), "16|2");
    EXPECT_EQ(formatter.get_arguments()[0].get_full_arg(), "{0:16|2}");
    EXPECT_EQ(formatter.get_arguments()[1].get_params(), "");
    EXPECT_TRUE(formatter.has_arg_escape(0));
    EXPECT_FALSE(formatter.has_arg_escape(1));
    formatter.replace_arg_escape_impl("{name}", "x");
    EXPECT_EQ(formatter.make_string(), "a {0:16|2} b x");
}

TEST(text_formatter, enumerations_show_as_their_number)
{
    enum class sample : int { first = 0, second = 1 };
    EXPECT_EQ(text_formatter::format("{0}", sample::second), "1");
}

}  // namespace
