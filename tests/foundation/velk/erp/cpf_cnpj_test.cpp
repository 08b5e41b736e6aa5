#include <velk/erp/cnpj.hpp>
#include <velk/erp/cpf.hpp>

#include <gtest/gtest.h>

namespace {

TEST(cnpj, reads_plain_and_punctuated_text_and_checks_the_digits)
{
    struct row {
        char const* text;
        bool valid;
    };
    for (row const r : {row{"11222333000181", true}, row{"11.222.333/0001-81", true}, row{"11222333000182", false},
                        row{"1122233300018", false}, row{"112223330001811", false}, row{"11 222 333 0001 81", false},
                        row{"", false}, row{"00000000000191", true},
                        // Remainder 1 in the first round, then in the second: digit 0.
                        row{"11222333001404", true}, row{"11222333001820", true}}) {
        EXPECT_EQ(velk::erp::cnpj::from_text(r.text).has_value(), r.valid) << r.text;
    }
    auto const value = velk::erp::cnpj::from_text("00.000.000/0001-91");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->to_number(), 191u);
    EXPECT_EQ(value->to_string(), "00000000000191");
    EXPECT_TRUE(velk::erp::cnpj::check_digits_match(11222333000181u));
}

TEST(cpf, reads_plain_and_punctuated_text_and_checks_the_digits)
{
    struct row {
        char const* text;
        bool valid;
    };
    for (row const r : {row{"52998224725", true}, row{"529.982.247-25", true}, row{"52998224724", false},
                        row{"5299822472", false}, row{"abc", false}, row{"00000000191", true},
                        // Remainder 1 in the first round, then in the second: digit 0.
                        row{"10000000108", true}, row{"10000002810", true}}) {
        EXPECT_EQ(velk::erp::cpf::from_text(r.text).has_value(), r.valid) << r.text;
    }
    EXPECT_EQ(velk::erp::cpf(191).to_string(), "00000000191");
    EXPECT_EQ(velk::erp::cpf::from_text("529.982.247-25")->to_number(), 52998224725u);
}

}  // namespace
