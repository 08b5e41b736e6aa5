#include <velk/core/binary_encoder.hpp>
#include <velk/core/byte_array.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/detail/decimal_text.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/variant.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

using velk::core::decimal;

TEST(decimal, writes_exactly_the_places_asked_rounding_half_away_from_zero)
{
    struct row {
        decimal value;
        unsigned places;
        char const* expected;
    };
    for (row const& r : {row{decimal(1250, -2), 2, "12.50"},      row{decimal(1250, -2), 4, "12.5000"},
                         row{decimal(2345, -3), 2, "2.35"},       row{decimal(-2345, -3), 2, "-2.35"},
                         row{decimal(2344, -3), 2, "2.34"},       row{decimal(-4, -3), 2, "0.00"},
                         row{decimal(5, -3), 2, "0.01"},          row{decimal(99999, -3), 2, "100.00"},
                         row{decimal(7, 0), 0, "7"},              row{decimal(15, -1), 0, "2"},
                         row{decimal(5, 2), 2, "500.00"},         row{decimal(0, 0), 10, "0.0000000000"},
                         row{decimal(1, -10), 2, "0.00"},         row{decimal(123456789012345678LL, -4), 4, "12345678901234.5678"},
                         row{decimal(-1, 0), 1, "-1.0"},          row{decimal(49, -2), 1, "0.5"},
                         row{decimal(3, -5), 10, "0.0000300000"},  row{decimal(-3, -4), 4, "-0.0003"},
                         row{decimal(-9223372036854775807LL - 1, -2), 3, "-92233720368547758.080"},
                         row{decimal(12, 38), 2, "1200000000000000000000000000000000000000.00"},
                         row{decimal(7, -41), 41, "0.00000000000000000000000000000000000000007"}}) {
        EXPECT_EQ(r.value.to_string(r.places, '.'), r.expected);
    }
    EXPECT_EQ(decimal(1250, -2).to_string(2, ','), "12,50");
}

// The one-pass text of the usual values against the digit-by-digit one, over
// magnitudes at the edges of rounding and of 64 bits, every place count the
// short text takes and one beyond.
TEST(decimal, short_text_agrees_with_the_general_one)
{
    int short_ones = 0;
    for (long long const unscaled : {0LL, 1LL, 4LL, 5LL, 9LL, 49LL, 50LL, 95LL, 99LL, 1250LL, 99999LL, 123456789LL,
                                     500000000000000000LL, 999999999999999999LL, 5000000000000000000LL, LLONG_MAX}) {
        for (long long const value : {unscaled, -unscaled - (unscaled == LLONG_MAX ? 1 : 0)}) {
            for (int exponent = 2; exponent >= -21; --exponent) {
                for (unsigned decimals = 0; decimals <= 20; ++decimals) {
                    velk::core::detail::short_decimal_buffer buffer;
                    std::string_view const fast =
                        velk::core::detail::short_decimal_text(value, static_cast<short>(exponent), decimals, ',', buffer);
                    if (!fast.empty()) {
                        ++short_ones;
                        EXPECT_EQ(fast, velk::core::detail::general_decimal_text(value, static_cast<short>(exponent),
                                                                                 decimals, ','))
                            << value << "e" << exponent << " to " << decimals;
                    }
                }
            }
        }
    }
    EXPECT_GT(short_ones, 10000);
}

TEST(decimal, sums_exactly_and_compares_by_value)
{
    EXPECT_EQ((decimal(1, -1) + decimal(2, -2)).to_string(2, '.'), "0.12");
    EXPECT_EQ((decimal(-150, -2) + decimal(3, 0)).to_string(2, '.'), "1.50");
    EXPECT_EQ(decimal(150, -2), decimal(15, -1));
    EXPECT_FALSE(decimal(150, -2) == decimal(15, -2));

    decimal parsed;
    ASSERT_TRUE(decimal::parse("-0.050", parsed));
    EXPECT_EQ(parsed.get_unscaled(), -50);
    EXPECT_EQ(parsed.get_exponent(), -3);
    for (char const* bad : {"", "-", "1,5", "1.2.3", "1e5", "abc"}) {
        EXPECT_FALSE(decimal::parse(bad, parsed)) << bad;
    }
}

TEST(binary_encoder, hexadecimal_is_lower_case_and_base64_is_padded)
{
    using velk::core::binary_encoder;
    using velk::core::binary_encoding;
    using velk::core::byte_array;
    struct row {
        char const* bytes;
        char const* hex;
        char const* base64;
    };
    for (row const& r : {row{"", "", ""}, row{"f", "66", "Zg=="}, row{"fo", "666f", "Zm8="}, row{"foo", "666f6f", "Zm9v"},
                         row{"foobar", "666f6f626172", "Zm9vYmFy"}, row{"\xff\xfe", "fffe", "//4="}}) {
        byte_array const bytes(r.bytes);
        EXPECT_EQ(binary_encoder::encode(binary_encoding::hexadecimal, bytes), r.hex);
        EXPECT_EQ(binary_encoder::encode(binary_encoding::base64, bytes), r.base64);
        byte_array decoded;
        ASSERT_TRUE(binary_encoder::decode(binary_encoding::base64, r.base64, decoded));
        EXPECT_EQ(decoded, bytes);
        ASSERT_TRUE(binary_encoder::decode(binary_encoding::hexadecimal, r.hex, decoded));
        EXPECT_EQ(decoded, bytes);
    }
    velk::core::byte_array ignored;
    EXPECT_FALSE(binary_encoder::decode(binary_encoding::hexadecimal, "abc", ignored));
    EXPECT_FALSE(binary_encoder::decode(binary_encoding::base64, "Zm9v!", ignored));
}

TEST(byte_array, insert_returns_the_last_byte_put_in)
{
    velk::core::byte_array bytes("ad");
    auto position = bytes.insert(bytes.begin() + 1, "bc");
    EXPECT_EQ(bytes.to_string(), "abcd");
    EXPECT_EQ(*position, 'c');
    position = bytes.insert(bytes.end(), static_cast<unsigned char>('e'));
    EXPECT_EQ(*position, 'e');
    EXPECT_EQ(bytes.to_string(), "abcde");
    position = bytes.insert(bytes.begin(), "");
    EXPECT_EQ(position, bytes.begin());
}

TEST(optional_and_variant, reading_what_is_not_there_ends_the_process_with_the_fixed_text)
{
    velk::core::optional<int> empty;
    EXPECT_EXIT(empty.value(), testing::ExitedWithCode(1),
                "BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &value\\(\\)'");
    EXPECT_EXIT(std::move(empty).value(), testing::ExitedWithCode(1),
                "BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &&value\\(\\)'");

    velk::core::variant<int, std::string> held = std::string("x");
    EXPECT_EXIT(velk::core::get<0>(held), testing::ExitedWithCode(1),
                "\\[velk::core::detail::variant_impl::get_impl\\]: var.index\\(\\) != I");
    EXPECT_EQ(velk::core::visit([](auto const& value) { return sizeof value; }, held), sizeof(std::string));
}

}  // namespace
