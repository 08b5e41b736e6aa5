#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using velk::core::result::chain;
using velk::core::result::stack;
using velk::erp::tarn::nfe::processar_nota_result_category;
using argumento = processar_nota_result_category::argumento;

static_assert(processar_nota_result_category::get_argumento(3) == argumento::nenhum);
static_assert(processar_nota_result_category::get_argumento(4) == argumento::texto);
static_assert(processar_nota_result_category::get_argumento(16) == argumento::numero);
static_assert(processar_nota_result_category::get_argumento(46) == argumento::numero);
static_assert(processar_nota_result_category::get_argumento(47) == argumento::texto);
static_assert(processar_nota_result_category::get_argumento(77) == argumento::numero);
static_assert(processar_nota_result_category::get_argumento(79) == argumento::nenhum);
static_assert(processar_nota_result_category::get_argumento(81) == argumento::numero);

processar_nota_result_category const& categoria = processar_nota_result_category::instance();

TEST(processar_nota_result_category, keeps_its_words_as_written)
{
    EXPECT_STREQ(categoria.get_name(), "tarn-nfe-nota-fiscal");
    EXPECT_STREQ(categoria.get_message(1), "O CNPJ do produtor rural está inválido");
    EXPECT_STREQ(categoria.get_message(14), "O CPF do transportados está inválido");
    EXPECT_STREQ(categoria.get_message(38), "O código de outras opraçãoes de COFINS está inválido");
    EXPECT_STREQ(categoria.get_message(46), "O motivo do ICMS desonerado está invaĺido");
    EXPECT_STREQ(categoria.get_message(78), "O indicador de intermediador/marketplace está inválido");
    EXPECT_STREQ(categoria.get_message(81), "O tipo de arma está inválido");
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

TEST(processar_nota_result_category, stores_the_detail_under_value)
{
    stack report;
    chain<processar_nota_result_category, 16>(report, 5u);
    chain<processar_nota_result_category, 71>(report, std::string("A"));
    chain<processar_nota_result_category, 66>(report);
    chain<processar_nota_result_category, 79>(report);
    ASSERT_EQ(report.size(), 4u);
    auto item = report.begin();
    EXPECT_EQ(*item->find_argument("value"), "5");
    ++item;
    EXPECT_EQ(*item->find_argument("value"), "A");
    EXPECT_EQ(item->get_arguments().size(), 1u);
    for (++item; item != report.end(); ++item) {
        EXPECT_TRUE(item->get_arguments().empty());
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
        chain<velk::core::converter_result_category, 2>(report);
        caso.reportar(report, "O valor de vBCST é obrigatório");
        ASSERT_EQ(report.size(), 1u);
        EXPECT_TRUE(report.get_category() == categoria);
        EXPECT_EQ(report.get_value(), caso.codigo);
        EXPECT_EQ(*report.top().find_argument("value"), "O valor de vBCST é obrigatório");
    }
}

}  // namespace
