#include <velk/core/converter.hpp>
#include <velk/core/datetime.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

using velk::core::converter_status;
using velk::core::make_string;
using velk::core::read_value;
using velk::core::value_converter;

template <class T>
converter_status read(T& value, std::string const& text)
{
    return value_converter<T>::make_value(value, text.data(), text.size());
}

TEST(integer_reading, width_limits_follow_the_target)
{
    struct row {
        std::size_t length;
        bool accepted16;
        bool accepted32;
        bool accepted64;
    };
    for (row const r : {row{1, true, true, true}, row{16, true, true, true}, row{17, false, true, true},
                        row{32, false, true, true}, row{33, false, false, true}, row{64, false, false, true},
                        row{65, false, false, false}}) {
        std::string const text(r.length, '0');
        std::int16_t a = 9;
        std::uint32_t b = 9;
        std::int64_t c = 9;
        EXPECT_EQ(read(a, text) == converter_status::done, r.accepted16) << r.length;
        EXPECT_EQ(read(b, text) == converter_status::done, r.accepted32) << r.length;
        EXPECT_EQ(read(c, text) == converter_status::done, r.accepted64) << r.length;
    }
}

TEST(integer_reading, sign_digits_empty_text_and_wrapping)
{
    int value = 5;
    EXPECT_EQ(read(value, ""), converter_status::done);
    EXPECT_EQ(value, 0);
    value = 5;
    EXPECT_EQ(read(value, "-"), converter_status::done);
    EXPECT_EQ(value, 0);
    EXPECT_EQ(read(value, "-123"), converter_status::done);
    EXPECT_EQ(value, -123);

    for (char const* bad : {"12a", " 12", "+1", "1.0", "--1", "1-"}) {
        value = 77;
        EXPECT_EQ(read(value, bad), converter_status::invalid_value) << bad;
        EXPECT_EQ(value, 77) << "a failed read keeps the target";
    }

    // Overflow is not detected: the digits wrap around the target's width.
    std::uint16_t small = 0;
    EXPECT_EQ(read(small, "65536"), converter_status::done);
    EXPECT_EQ(small, 0);
    std::uint32_t unsigned_value = 0;
    EXPECT_EQ(read(unsigned_value, "-1"), converter_status::done);
    EXPECT_EQ(unsigned_value, 0xFFFFFFFFu);
}

TEST(integer_writing, asks_for_room_and_writes_the_sign)
{
    char buffer[8];
    unsigned long size = 3;
    EXPECT_EQ(velk::core::chars_converter<int>::make_chars(buffer, size, -1234), converter_status::buffer_too_small);
    EXPECT_EQ(size, 5u);
    EXPECT_EQ(velk::core::chars_converter<int>::make_chars(buffer, size, -1234), converter_status::done);
    EXPECT_EQ(std::string(buffer, size), "-1234");

    velk::core::result::stack stack;
    EXPECT_EQ(make_string(std::numeric_limits<std::int64_t>::min(), stack), "-9223372036854775808");
    EXPECT_EQ(make_string(std::uint64_t{18446744073709551615u}, stack), "18446744073709551615");
    EXPECT_FALSE(stack.has_failed());
}

// A value whose text needs more than the recipe's 64-byte first buffer, and
// one that has no text at all.
struct long_text {};
struct no_text {};
struct bad_parameter {};

}  // namespace

namespace velk::core {
template <>
struct chars_converter<long_text> {
    static converter_status make_chars(char* buffer, unsigned long& size, long_text)
    {
        if (size < 100) {
            size = 100;
            return converter_status::buffer_too_small;
        }
        std::fill(buffer, buffer + 100, 'x');
        size = 100;
        return converter_status::done;
    }
};
template <>
struct chars_converter<no_text> {
    static converter_status make_chars(char*, unsigned long&, no_text) { return converter_status::invalid_value; }
};
template <>
struct chars_converter<bad_parameter> {
    static converter_status make_chars(char*, unsigned long&, bad_parameter)
    {
        return converter_status::bad_parameter;
    }
};
}  // namespace velk::core

namespace {

TEST(text_recipe, grows_the_buffer_and_reports_failures_with_the_converter_codes)
{
    velk::core::result::stack stack;
    EXPECT_EQ(make_string(long_text{}, stack), std::string(100, 'x'));
    EXPECT_FALSE(stack.has_failed());

    EXPECT_EQ(make_string(no_text{}, stack), "");
    ASSERT_TRUE(stack.has_failed());
    EXPECT_TRUE(stack.get_category() == velk::core::converter_result_category::instance());
    EXPECT_EQ(stack.get_value(), 2);

    EXPECT_EQ(make_string(bad_parameter{}, stack), "");
    EXPECT_EQ(stack.size(), 2u) << "the recipe pushes on top of what was there";
    EXPECT_EQ(stack.get_value(), 1);
}

TEST(text_recipe, read_value_replaces_the_stack_on_failure)
{
    velk::core::result::stack stack;
    make_string(no_text{}, stack);
    make_string(no_text{}, stack);
    short value = 3;
    EXPECT_FALSE(read_value(value, "x", stack));
    EXPECT_EQ(stack.size(), 1u);
    EXPECT_EQ(stack.get_value(), 2);
    EXPECT_EQ(value, 3);
}

TEST(datetime_text, writes_the_layout_form_with_the_offset)
{
    using velk::core::date;
    using velk::core::datetime;
    using velk::core::time;
    velk::core::result::stack stack;
    struct row {
        datetime value;
        char const* expected;
    };
    for (row const& r : {row{datetime(date(5, 3, 2024), time(9, 7, 1, 999), -180), "2024-03-05T09:07:01-03:00"},
                         row{datetime(date(29, 2, 2024), time(23, 59, 59, 0), 0), "2024-02-29T23:59:59+00:00"},
                         row{datetime(date(1, 1, 1), time(0, 0, 0, 0), 330), "0001-01-01T00:00:00+05:30"},
                         row{datetime(date(31, 12, 2025), time(12, 0, 0, 0), -150), "2025-12-31T12:00:00-02:30"}}) {
        EXPECT_EQ(make_string(r.value, stack), r.expected);
    }
    EXPECT_FALSE(stack.has_failed());
    EXPECT_EQ(make_string(date(14, 7, 2023), stack), "2023-07-14");

    for (datetime const& bad : {datetime(date(29, 2, 2023), time(), 0), datetime(date(1, 13, 2023), time(), 0),
                                datetime(date(0, 1, 2023), time(), 0), datetime(date(1, 1, 2023), time(24, 0, 0, 0), 0),
                                datetime(date(1, 1, 2023), time(), 24 * 60), datetime()}) {
        velk::core::result::stack local;
        EXPECT_EQ(make_string(bad, local), "");
        EXPECT_TRUE(local.has_failed());
    }
}

TEST(datetime_text, reads_the_forms_the_answers_use)
{
    using velk::core::date;
    using velk::core::datetime;
    using velk::core::time;
    struct row {
        char const* text;
        datetime expected;
    };
    for (row const& r : {row{"2015-05-31T12:24:12-03:00", datetime(date(31, 5, 2015), time(12, 24, 12, 0), -180)},
                         row{"2013-12-01T15:01:03", datetime(date(1, 12, 2013), time(15, 1, 3, 0), 0)},
                         row{"2013-12-01T15:01:03Z", datetime(date(1, 12, 2013), time(15, 1, 3, 0), 0)},
                         row{"2020-01-02T03:04:05.250+01:00", datetime(date(2, 1, 2020), time(3, 4, 5, 250), 60)}}) {
        datetime value;
        EXPECT_EQ(read(value, r.text), converter_status::done) << r.text;
        EXPECT_EQ(value, r.expected) << r.text;
    }
    for (char const* bad : {"", "2015-05-31", "2015-05-31 12:24:12", "2015-05-31T12:24:12-0300", "2015-02-30T00:00:00",
                            "2015-05-31T25:00:00", "2015-05-31T12:24:12+3:00", "2015-05-31T12:24:12.-03:00",
                            "2015-05-31T12:24:12-03:00x"}) {
        datetime value;
        EXPECT_EQ(read(value, bad), converter_status::invalid_value) << bad;
    }
}

}  // namespace
