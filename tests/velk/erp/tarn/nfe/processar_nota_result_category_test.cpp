#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using velk::core::result::chain;
using velk::core::result::stack;
using velk::erp::tarn::nfe::processar_nota_result_category;

processar_nota_result_category const& categoria = processar_nota_result_category::instance();

TEST(processar_nota_result_category, keeps_its_words_as_written)
{
    EXPECT_STREQ(categoria.get_name(), "tarn-nfe-nota-fiscal");
    // The words of the codes the builder gives are checked with its refusals.
    EXPECT_STREQ(categoria.get_message(14), "O CPF do transportados está inválido");
    for (int code = 1; code <= processar_nota_result_category::ultimo_codigo; ++code) {
        if (code != 79 && code != 80) {
            EXPECT_GT(std::string(categoria.get_message(code)).size(), 10u) << code;
        }
    }
}

TEST(processar_nota_result_category, a_code_without_words_ends_the_process)
{
    for (int const code : {0, 79, 80, 82}) {
        EXPECT_EXIT(categoria.get_message(code), testing::ExitedWithCode(1), "") << code;
    }
}

TEST(processar_nota_result_category, required_values_are_fresh_reports)
{
    struct obrigatorio {
        void (*reportar)(stack&, std::string const&);
        int codigo;
    };
    for (obrigatorio const caso : {obrigatorio{velk::erp::tarn::nfe::obrigatorio_base, 47},
                                   obrigatorio{velk::erp::tarn::nfe::obrigatorio_valor, 55}}) {
        stack report;
        chain<velk::core::converter_result_category::invalid_value>(report);
        caso.reportar(report, "O valor de vBCST é obrigatório");
        ASSERT_EQ(report.size(), 1u);
        EXPECT_TRUE(report.get_category() == categoria);
        EXPECT_EQ(report.get_value(), caso.codigo);
        EXPECT_EQ(*report.top().find_argument("value"), "O valor de vBCST é obrigatório");
    }
}

}  // namespace
