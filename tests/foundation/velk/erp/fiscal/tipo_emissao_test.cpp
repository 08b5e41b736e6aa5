#include <velk/erp/fiscal/tipo_emissao.hpp>

#include <gtest/gtest.h>

namespace {

using velk::erp::fiscal::tipo_emissao;

TEST(tipo_emissao, text_is_the_tpemis_digit)
{
    char const digits[] = {'1', '2', '3', '4', '5', '6', '7', '9'};
    for (int index = 0; index < 8; ++index) {
        velk::core::result::stack stack;
        auto const value = static_cast<tipo_emissao>(index);
        EXPECT_EQ(velk::core::make_string(value, stack), std::string(1, digits[index]));
        tipo_emissao read_back = tipo_emissao::normal;
        ASSERT_TRUE(velk::core::read_value(read_back, std::string(1, digits[index]), stack));
        EXPECT_EQ(read_back, value);
    }
    velk::core::result::stack stack;
    tipo_emissao value = tipo_emissao::normal;
    for (char const* bad : {"8", "0", "", "11"}) {
        EXPECT_FALSE(velk::core::read_value(value, bad, stack)) << bad;
    }
    EXPECT_EQ(velk::core::make_string(static_cast<tipo_emissao>(8), stack), "");
}

}  // namespace
