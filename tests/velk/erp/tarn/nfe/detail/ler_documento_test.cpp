#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/detail/ler_documento.hpp>

#include <support/palavras_categoria.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

namespace detail = velk::erp::tarn::nfe::detail;
using velk::core::result::stack;

TEST(ler_documento, reads_digits_as_they_are_without_checking_them)
{
    struct leitura {
        std::string texto;
        std::uint64_t numero;
    };
    for (leitura const& caso : {leitura{"08931527000141", 8931527000141}, leitura{"00000000000191", 191},
                                leitura{"12345678000100", 12345678000100}, leitura{"", 0}}) {
        stack report;
        std::uint64_t numero = 7;
        EXPECT_TRUE(detail::ler_cnpj(caso.texto, numero, report)) << caso.texto;
        EXPECT_EQ(numero, caso.numero);
        EXPECT_FALSE(report.has_failed());
    }
}

TEST(ler_documento, refuses_what_is_no_number_with_the_converter_and_the_document_beneath)
{
    struct recusa {
        bool (*ler)(std::string const&, std::uint64_t&, stack&);
        std::string texto;
        int codigo;
        char const* mensagem;
    };
    for (recusa const& caso : {recusa{detail::ler_cpf, "284.619.357-64", 1, "O CPF informado é inválido"},
                               recusa{detail::ler_cnpj, "08 931 527 0001 41", 2, "O CNPJ informado é inválido"},
                               recusa{detail::ler_cnpj, std::string(65, '9'), 2, "O CNPJ informado é inválido"}}) {
        stack report;
        velk::core::result::chain<velk::core::converter_result_category::bad_parameter>(report);
        std::uint64_t numero = 7;
        EXPECT_FALSE(caso.ler(caso.texto, numero, report));
        EXPECT_EQ(numero, 7u);
        ASSERT_EQ(report.size(), 2u) << "the report is fresh: " << report.to_string();
        EXPECT_TRUE(report.begin()->get_category() == velk::core::converter_result_category::instance());
        EXPECT_EQ(report.begin()->get_value(), 2);
        EXPECT_STREQ(report.top().get_category().get_name(), "internal-errors");
        EXPECT_EQ(report.get_value(), caso.codigo);
        EXPECT_STREQ(report.top().get_message(), caso.mensagem);
    }
}

// The readers' own category is reached through a refusal; its words as the
// published table gives them, code 3 included, which no reader raises.
TEST(ler_documento, internal_errors_words)
{
    stack report;
    std::uint64_t numero = 0;
    ASSERT_FALSE(detail::ler_cpf("x", numero, report));
    velk::test::conferir_palavras(report.top().get_category(), "internal-errors", {
        {1, "O CPF informado é inválido"},
        {2, "O CNPJ informado é inválido"},
        {3, "O indicador estrangeiro informado é inválido"},
    });
}

}  // namespace
