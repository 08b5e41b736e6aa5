#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>
#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/erp/tarn/nfe/servico_evento_result_category.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace tarn = velk::erp::tarn;
namespace result = velk::core::result;
using arguments = std::vector<std::pair<std::string, std::string>>;

TEST(categorias, names_and_message_tables)
{
    EXPECT_STREQ(tarn::detail::soap::curl_result_category::instance().get_name(), "tarn-detail-soap-curl");
    EXPECT_STREQ(tarn::nfe::servico_result_category::instance().get_name(), "tarn-nfe-servico-geral");
    EXPECT_STREQ(tarn::nfe::processo_recuperar_resposta_result_category::instance().get_name(),
                 "tarn-processo-recuperar-resposta-receita");
    EXPECT_STREQ(tarn::nfe::servico_evento_result_category::instance().get_name(), "tarn-nfe-servico-evento");
    EXPECT_STREQ(tarn::nfe::sefaz_data::result_category::instance().get_name(), "erp-tarn-sefaz-data");

    EXPECT_STREQ(tarn::detail::soap::curl_result_category::instance().get_message(11), "Tempo de conexão esgotado");
    EXPECT_STREQ(tarn::detail::soap::curl_result_category::instance().get_message(24),
                 "Erro desconhecido retornado pela cURL");
    EXPECT_STREQ(tarn::nfe::servico_result_category::instance().get_message(16),
                 "O servidor da receita respondeu uma mensagem SOAP inválida");
    EXPECT_STREQ(tarn::nfe::sefaz_data::result_category::instance().get_message(9), "Requisição possuí valor inválido");
    EXPECT_STREQ(tarn::nfe::servico_evento_result_category::instance().get_message(1),
                 "Nenhuma requisição (cancelamento, carta de correção ou EPEC) foi informada");

    EXPECT_EXIT(tarn::detail::soap::curl_result_category::instance().get_message(25), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(tarn::nfe::servico_result_category::instance().get_message(0), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(tarn::nfe::sefaz_data::result_category::instance().get_message(12), testing::ExitedWithCode(1), "");
}

// The codes libcurl gives in the exchanges with the simulator are checked
// there; here, what falls outside the table.
TEST(categorias, libcurl_results_outside_the_table_are_code_24)
{
    for (int const other : {-1, 0, 1, 2, 10, 84, 99}) {
        EXPECT_EQ(tarn::detail::soap::curl_result_category::code_of(other), 24) << other;
    }
}

TEST(categorias, libcurl_report_is_fresh_and_carries_curl_message)
{
    result::stack stack;
    result::chain<velk::core::converter_result_category::bad_parameter>(stack);
    tarn::detail::soap::report_curl_failure(28, "Operation timed out after 100 milliseconds", stack);
    ASSERT_EQ(stack.size(), 1u);
    EXPECT_EQ(stack.get_value(), 11);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"curl_message", "Operation timed out after 100 milliseconds"}}));

    tarn::detail::soap::report_curl_failure(2, "", stack);
    EXPECT_EQ(stack.get_value(), 24);
    ASSERT_EQ(stack.top().get_arguments().size(), 2u);
    EXPECT_EQ(stack.top().get_arguments()[0], (std::pair<std::string, std::string>{"curl_code", "2"}));
    EXPECT_EQ(stack.top().get_arguments()[1].first, "curl_message");
    EXPECT_FALSE(stack.top().get_arguments()[1].second.empty()) << "libcurl's own text when the buffer is empty";

    tarn::detail::soap::report_curl_failure(-3, nullptr, stack);
    EXPECT_EQ(*stack.top().find_argument("curl_code"), "-3");
}

// The details of the other codes are checked where the service reports them.
TEST(categorias, servico_details_are_stored_under_their_fixed_names)
{
    using tarn::nfe::servico_result_category;
    result::stack stack;
    result::chain<servico_result_category::estado_desconhecido>(stack, velk::erp::estado::sp);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"value", "24"}})) << "the enumerator, not the IBGE code";
    result::chain<servico_result_category::tipo_emissao_diferente>(
        stack, velk::erp::fiscal::tipo_emissao::contingencia_offline_nfce, velk::erp::fiscal::tipo_emissao::normal);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"valor_esperado", "7"}, {"valor_recebido", "0"}}));
    result::chain<servico_result_category::modelo_diferente>(stack, tarn::modelo::nfce, tarn::modelo::nfe);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"valor_esperado", "1"}, {"valor_recebido", "0"}}));
}

}  // namespace
