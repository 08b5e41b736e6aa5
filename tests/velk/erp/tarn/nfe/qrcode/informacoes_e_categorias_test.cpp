#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_obter_urlchave_result_category.hpp>

#include <velk/core/converter_result_category.hpp>
#include <velk/core/datetime.hpp>
#include <velk/core/result/report.hpp>

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

TEST(qrcode_categories, names_words_and_the_details_they_work_out)
{
    using gerar = nfe::processo_gerar_qrcode_result_category;
    using urlchave = nfe::processo_obter_urlchave_result_category;
    EXPECT_STREQ(gerar::instance().get_name(), "tarn-nfe-processo-gerar-qrcode");
    EXPECT_STREQ(gerar::instance().get_message(5), "A url não está disponivel para a UF solicitada");
    EXPECT_STREQ(urlchave::instance().get_name(), "tarn-nfe-processo-obter-urlchave");
    EXPECT_STREQ(urlchave::instance().get_message(2), "O valor do estado utilizado para busca é inválido");
    // Code 9 is made and read by number, but has no words.
    EXPECT_EXIT(gerar::instance().get_message(9), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(gerar::instance().get_message(0), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(urlchave::instance().get_message(3), testing::ExitedWithCode(1), "");

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
