#include <velk/erp/estado.hpp>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using velk::erp::estado;

TEST(estado, the_27_states_in_order_with_abbreviation_and_ibge_code)
{
    char const* const abbreviations[] = {"AC", "AL", "AP", "AM", "BA", "CE", "DF", "ES", "GO", "MA", "MS", "MT", "MG", "PA",
                                         "PB", "PR", "PE", "PI", "RJ", "RN", "RS", "RO", "RR", "SC", "SP", "SE", "TO"};
    int const codes[] = {12, 27, 16, 13, 29, 23, 53, 32, 52, 21, 50, 51, 31, 15, 25, 41, 26, 22, 33, 24, 43, 11, 14, 42, 35, 28, 17};
    std::set<int> seen;
    for (int index = 0; index < velk::erp::quantidade_estados; ++index) {
        auto const value = static_cast<estado>(index);
        EXPECT_EQ(velk::erp::get_uf(value), abbreviations[index]);
        EXPECT_EQ(velk::erp::get_codigo_ibge(value), codes[index]);
        seen.insert(codes[index]);

        velk::core::result::stack stack;
        std::string const text = velk::core::make_string(value, stack);
        EXPECT_EQ(text, std::to_string(codes[index]));
        estado read_back = estado::ac;
        ASSERT_TRUE(velk::core::read_value(read_back, text, stack));
        EXPECT_EQ(read_back, value);
        ASSERT_TRUE(velk::core::read_value(read_back, abbreviations[index], stack));
        EXPECT_EQ(read_back, value);
    }
    EXPECT_EQ(seen.size(), 27u);
}

TEST(estado, values_and_texts_that_are_no_state)
{
    velk::core::result::stack stack;
    EXPECT_EQ(velk::core::make_string(static_cast<estado>(27), stack), "");
    EXPECT_TRUE(stack.has_failed());
    EXPECT_EQ(velk::erp::get_uf(static_cast<estado>(-1)), "");
    EXPECT_EQ(velk::erp::get_codigo_ibge(static_cast<estado>(27)), 0);

    for (char const* text : {"99", "00", "3", "355", "sp", "XX", ""}) {
        estado value = estado::to;
        EXPECT_FALSE(velk::core::read_value(value, text, stack)) << text;
        EXPECT_EQ(value, estado::to);
    }
}

}  // namespace
