#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_obter_urlchave_result_category.hpp>

#include <velk/core/converter_result_category.hpp>
#include <velk/core/datetime.hpp>
#include <velk/core/result/report.hpp>

#include <support/palavras_categoria.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace result = velk::core::result;
using nfe::informacoes_adicionais;
using nfe::versao_qrcode;
using arguments = std::vector<std::pair<std::string, std::string>>;

TEST(informacoes_adicionais, empty_until_a_setter_and_independent_when_copied)
{
    auto const expect_empty = [](informacoes_adicionais const& value) {
        EXPECT_EQ(value.get_versao_qrcode(), versao_qrcode::versao_100);
        EXPECT_FALSE(value.get_url_chave().has_value());
        EXPECT_EQ(value.get_url_qrcode(), "");
    };
    expect_empty(informacoes_adicionais());
    informacoes_adicionais full(versao_qrcode::versao_200, std::string("http://chave"), "http://p?");
    informacoes_adicionais const copy = full;
    informacoes_adicionais moved = std::move(full);
    expect_empty(full);  // a moved-from object reads as an empty one
    moved.set_url_chave(std::nullopt);
    EXPECT_EQ(*copy.get_url_chave(), "http://chave") << "copies share nothing";
    EXPECT_EQ(moved.get_url_qrcode(), "http://p?");

    full.set_url_qrcode("http://a?");  // a setter makes the implementation again
    EXPECT_EQ(full.get_url_qrcode(), "http://a?");
    EXPECT_EQ(full.get_versao_qrcode(), versao_qrcode::versao_100);
}

// The words of every code as the published tables give them; code 9 has none.
TEST(qrcode_categories, gerar_qrcode_words)
{
    velk::test::conferir_palavras(nfe::processo_gerar_qrcode_result_category::instance(),
                                  "tarn-nfe-processo-gerar-qrcode", {
        {1, "O documento informado para gerar o QrCode é inválido"},
        {2, "O CSC não é valido ou não foi informado"},
        {3, "O Id Token não é valido ou não foi informado"},
        {4, "A versao requisitada não é suportada"},
        {5, "A url não está disponivel para a UF solicitada"},
        {6, "A hash gerada para o QrCode está inválida"},
        {7, "O digest gerado para o QrCode está inválido"},
        {8, "Valor utilizado para obter a URL está inválido"},
    }, {9});
}

TEST(qrcode_categories, obter_urlchave_words)
{
    velk::test::conferir_palavras(nfe::processo_obter_urlchave_result_category::instance(),
                                  "tarn-nfe-processo-obter-urlchave", {
        {1, "A url de consulta para a UF requisitada não está disponivel"},
        {2, "O valor do estado utilizado para busca é inválido"},
    });
}

TEST(qrcode_categories, details_they_work_out)
{
    using gerar = nfe::processo_gerar_qrcode_result_category;
    using urlchave = nfe::processo_obter_urlchave_result_category;
    result::stack s;
    result::chain<gerar::hash_invalido>(s, "ABC");
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"hash-value", "ABC"}, {"hash-size", "3"}}));
    result::chain<urlchave::url_indisponivel>(s, velk::erp::estado::ma, velk::erp::tarn::ambiente::homologacao);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"estado", "9"}, {"ambiente", "0"}}));
}

// A value without text (only a datetime out of range can be one, and no
// document read from XML holds it) is named over the converter's failure.
TEST(qrcode_generators, a_value_without_text_is_code_8_over_the_converters_failure)
{
    velk::core::datetime const impossible(velk::core::date(31, 2, 2024), velk::core::time(10, 0, 0, 0), -180);
    result::stack s;
    std::string text = "former";
    EXPECT_FALSE(nfe::detail::texto_do_campo(impossible, text, "2.00", "dh_emissao", s));
    EXPECT_EQ(text, "");
    ASSERT_EQ(s.size(), 2U);
    EXPECT_TRUE(s.begin()->get_category() == velk::core::converter_result_category::instance());
    EXPECT_EQ(s.begin()->get_value(), 2);
    EXPECT_TRUE(s.get_category() == nfe::processo_gerar_qrcode_result_category::instance());
    EXPECT_EQ(s.get_value(), 8);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"url-version", "2.00"}, {"url-field", "dh_emissao"}}));

    s.reset();
    EXPECT_TRUE(nfe::detail::texto_do_campo(2, text, "1.00", "codigo_ambiente", s));
    EXPECT_EQ(text, "2");
    EXPECT_FALSE(s.has_failed());
}

}  // namespace
