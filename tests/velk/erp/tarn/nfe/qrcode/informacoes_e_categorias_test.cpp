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

void expect_empty(informacoes_adicionais const& value)
{
    EXPECT_EQ(value.get_versao_qrcode(), versao_qrcode::versao_100);
    EXPECT_FALSE(value.get_url_chave().has_value());
    EXPECT_EQ(value.get_url_qrcode(), "");
}

TEST(informacoes_adicionais, empty_until_a_setter_and_independent_when_copied)
{
    informacoes_adicionais empty;
    expect_empty(empty);

    informacoes_adicionais full(versao_qrcode::versao_200, std::string("http://chave"), "http://p?");
    informacoes_adicionais const copy = full;
    informacoes_adicionais moved = std::move(full);
    expect_empty(full);  // NOLINT: a moved-from object reads as an empty one
    EXPECT_EQ(moved.get_versao_qrcode(), versao_qrcode::versao_200);
    EXPECT_EQ(*moved.get_url_chave(), "http://chave");
    EXPECT_EQ(moved.get_url_qrcode(), "http://p?");

    moved.set_url_chave(std::nullopt);
    moved.set_url_qrcode("http://outra?");
    EXPECT_FALSE(moved.get_url_chave().has_value());
    EXPECT_EQ(*copy.get_url_chave(), "http://chave") << "copies share nothing";
    EXPECT_EQ(copy.get_url_qrcode(), "http://p?");

    // Each setter makes the implementation of an empty or moved-from object.
    full.set_url_qrcode("http://a?");
    EXPECT_EQ(full.get_url_qrcode(), "http://a?");
    EXPECT_EQ(full.get_versao_qrcode(), versao_qrcode::versao_100);
    empty.set_versao_qrcode(versao_qrcode::versao_200);
    EXPECT_EQ(empty.get_versao_qrcode(), versao_qrcode::versao_200);
    informacoes_adicionais chave_only;
    chave_only.set_url_chave(std::string("http://c"));
    EXPECT_EQ(*chave_only.get_url_chave(), "http://c");

    swap(empty, moved);
    EXPECT_EQ(empty.get_url_qrcode(), "http://outra?");
    EXPECT_EQ(moved.get_versao_qrcode(), versao_qrcode::versao_200);
    informacoes_adicionais assigned;
    assigned = copy;
    EXPECT_EQ(assigned.get_url_qrcode(), "http://p?");
    assigned = informacoes_adicionais();
    expect_empty(assigned);
}

TEST(processo_gerar_qrcode_result_category, words_of_codes_1_to_8_and_none_for_9)
{
    auto const& category = nfe::processo_gerar_qrcode_result_category::instance();
    EXPECT_STREQ(category.get_name(), "tarn-nfe-processo-gerar-qrcode");
    EXPECT_STREQ(category.get_message(2), "O CSC não é valido ou não foi informado");
    EXPECT_STREQ(category.get_message(5), "A url não está disponivel para a UF solicitada");
    EXPECT_STREQ(category.get_message(8), "Valor utilizado para obter a URL está inválido");
    for (int code = 1; code <= 8; ++code) {
        EXPECT_NE(category.get_message(code), nullptr) << code;
    }
    EXPECT_EXIT(category.get_message(9), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(category.get_message(0), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(category.get_message(10), testing::ExitedWithCode(1), "");
}

TEST(processo_gerar_qrcode_result_category, details_under_their_fixed_names)
{
    using category = nfe::processo_gerar_qrcode_result_category;
    result::stack s;
    result::chain<category, 1>(s);
    EXPECT_TRUE(s.top().get_arguments().empty());
    result::chain<category, 4>(s, 200);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"value", "200"}}));
    result::chain<category, 5>(s, "21");
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"codigo_uf", "21"}}));
    result::chain<category, 6>(s, "ABC");
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"hash-value", "ABC"}, {"hash-size", "3"}}));
    result::chain<category, 8>(s, "1.00", "chave_acesso");
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"url-version", "1.00"}, {"url-field", "chave_acesso"}}));
    result::chain<category, 9>(s, "2.00");
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"versao-nfe", "2.00"}}));
    EXPECT_EQ(s.get_value(), 9) << "code 9 is made and read by number, without words";
}

TEST(processo_obter_urlchave_result_category, names_words_and_details)
{
    using category = nfe::processo_obter_urlchave_result_category;
    EXPECT_STREQ(category::instance().get_name(), "tarn-nfe-processo-obter-urlchave");
    EXPECT_STREQ(category::instance().get_message(1), "A url de consulta para a UF requisitada não está disponivel");
    EXPECT_STREQ(category::instance().get_message(2), "O valor do estado utilizado para busca é inválido");
    EXPECT_EXIT(category::instance().get_message(3), testing::ExitedWithCode(1), "");

    result::stack s;
    result::chain<category, 1>(s, velk::erp::estado::ma, velk::erp::tarn::ambiente::homologacao);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"estado", "9"}, {"ambiente", "0"}}));
    result::chain<category, 2>(s, velk::erp::tarn::ambiente::producao);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"ambiente", "1"}}));
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
