#include "evento_respostas_teste.hpp"

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/xml_text.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using namespace velk::erp::tarn::nfe::sefaz_data::resposta;
using velk::core::result::stack;
using velk::test::ret_evento;
using velk::test::ret_evento_campos;
using arguments = std::vector<std::pair<std::string, std::string>>;

// The answer to one event inside a batch; the element of a retEvento takes
// the namespace of the batch, as it comes from the authority.
velk::xml::element ret_evento_element(ret_evento_campos const& campos)
{
    velk::xml::element const batch = velk::test::parse_element(velk::test::lote_processado(ret_evento(campos)));
    return *batch.find_child("retEvento");
}

// The reading of one answer class, for tables of rows.
template <class Resposta>
void read_as(velk::xml::element const& ret_evento, stack& s)
{
    Resposta::from_xml(ret_evento, s);
}

TEST(respostas_evento, answers_of_each_family_read_with_their_values)
{
    struct row {
        char const* name;
        ret_evento_campos campos;
        std::size_t family;
        char const* protocolo;  // empty: none
    } const rows[] = {
        {"cancellation registered", {}, 0, "135240000123456"},
        {"cancellation by substitution out of time",
         {"155", "Cancelamento homologado fora de prazo", "35240305730928000145650010000001421071400478", "110112",
          "135240000000099"},
         0, "135240000000099"},
        {"correction letter", {"135", "Evento registrado e vinculado a NF-e", velk::test::ret_evento_campos{}.chave,
                               "110110", "135240000000100"},
         1, "135240000000100"},
        {"EPEC", {"136", "Evento registrado, mas nao vinculado a NF-e", velk::test::ret_evento_campos{}.chave,
                  "110140", "891240000000001"},
         2, "891240000000001"},
        {"awareness of the operation", {"135", "Evento registrado e vinculado a NF-e",
                                        velk::test::ret_evento_campos{}.chave, "210210", "891240000000002"},
         3, "891240000000002"},
        {"duplicate event", {"573", "Rejeicao: Duplicidade de Evento", velk::test::ret_evento_campos{}.chave,
                             "110111", ""},
         0, ""},
    };
    std::string all;
    for (row const& each : rows) {
        all += ret_evento(each.campos);
    }
    std::string const batch_text = velk::test::lote_processado(all);
    EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / "retEnvEvento_v1.00.xsd",
                                                  velk::core::byte_array(batch_text)),
              std::vector<std::string>())
        << "the answers are as the authorities write them";

    stack s;
    lote_evento const batch = lote_evento::from_xml(velk::test::parse_or_fail(batch_text), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(batch.get_codigo_status(), 128u);
    EXPECT_EQ(batch.get_motivo(), "Lote de Evento Processado");
    EXPECT_EQ(batch.get_xml().get_name(), "retEnvEvento");
    std::vector<resposta_evento> const eventos = batch.get_eventos();
    ASSERT_EQ(eventos.size(), std::size(rows));
    for (std::size_t index = 0; index < eventos.size(); ++index) {
        row const& each = rows[index];
        SCOPED_TRACE(each.name);
        ASSERT_EQ(eventos[index].index(), each.family);
        velk::core::visit(
            [&each](retorno_evento const& answer) {
                EXPECT_EQ(answer.get_codigo_status(), static_cast<std::uint32_t>(std::stoul(each.campos.cstat)));
                EXPECT_EQ(answer.get_motivo(), each.campos.motivo);
                EXPECT_EQ(answer.get_data_registro_evento(),
                          velk::core::datetime(velk::core::date(1, 2, 2024), velk::core::time(14, 7, 8, 0), -180));
                ASSERT_TRUE(answer.get_chave_acesso().has_value());
                EXPECT_EQ(answer.get_chave_acesso()->get_cnpj(), each.campos.chave.substr(6, 14));
                EXPECT_EQ(answer.get_numero_protocolo().has_value(), *each.protocolo != '\0');
                if (*each.protocolo != '\0') {
                    EXPECT_EQ(std::to_string(answer.get_numero_protocolo().value()), each.protocolo);
                }
                EXPECT_EQ(answer.get_xml().get_name(), "retEvento") << "the retEvento alone is kept";
            },
            eventos[index]);
    }
}

TEST(respostas_evento, each_class_takes_the_types_of_its_family)
{
    struct row {
        char const* tipo;
        std::function<void(velk::xml::element const&, stack&)> read;
        char const* expected;  // empty: accepted
    };
    row const rows[] = {
        {"110111", read_as<cancelamento>, ""},
        {"110112", read_as<cancelamento>, ""},
        {"110110", read_as<cancelamento>, "110111 ou 110112"},
        {"110110", read_as<carta_correcao>, ""},
        {"110111", read_as<carta_correcao>, "110110"},
        {"110140", read_as<epec_nfe>, ""},
        {"210200", read_as<epec_nfe>, "110140"},
        {"210240", read_as<manifestacao_destinatario>, ""},
        {"210200", read_as<manifestacao_destinatario>, ""},
        {"110111", read_as<manifestacao_destinatario>, "210200, 210210, 210220 ou 210240"},
        {"", read_as<cancelamento>, ""},
        {"", read_as<epec_nfe>, ""},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(std::string(each.tipo) + " expected " + each.expected);
        ret_evento_campos campos;
        campos.tipo = each.tipo;
        stack s;
        each.read(ret_evento_element(campos), s);
        if (*each.expected == '\0') {
            EXPECT_FALSE(s.has_failed()) << s.to_string();
            continue;
        }
        ASSERT_EQ(s.size(), 1u) << s.to_string();
        EXPECT_EQ(s.get_value(), 8);
        EXPECT_EQ(s.top().get_arguments(), (arguments{{"expected", each.expected}, {"received", each.tipo}}));
    }
}

TEST(respostas_evento, names_of_what_is_missing_or_does_not_convert)
{
    auto const with = [](auto change) {
        ret_evento_campos campos;
        change(campos);
        return ret_evento_element(campos);
    };
    struct row {
        char const* name;
        velk::xml::element answer;
        std::function<void(velk::xml::element const&, stack&)> read;
        int code;
        arguments expected;
    };
    std::vector<row> const rows = {
        {"other root", velk::test::parse_element("<retEnvEvento/>"), read_as<cancelamento>, 1,
         {{"element-name", "retEvento"}}},
        {"no dhRegEvento", velk::test::parse_element("<retEvento><infEvento><cStat>135</cStat><xMotivo/></infEvento>"
                                                     "</retEvento>"),
         read_as<cancelamento>, 1, {{"element-name", "retEvento/infEvento/dhRegEvento"}}},
        {"cStat not a number", with([](auto& c) { c.cstat = "13S"; }), read_as<cancelamento>, 2,
         {{"element-name", "retEvento/infEvento/cStat"}, {"element-value", "13S"}}},
        {"key of 43 digits", with([](auto& c) { c.chave.pop_back(); }), read_as<cancelamento>, 2,
         {{"element-name", "retEvento/infEvento/chNFe"},
          {"element-value", "3515030082260200012455001000992346109923465"}}},
        {"protocol of a correction letter", with([](auto& c) { c.tipo = "110110"; c.protocolo = "X"; }),
         read_as<carta_correcao>, 2,
         {{"element-name", "infEvento/nProt"}, {"element-value", "X"}}},
        {"type of an EPEC", with([](auto& c) { c.tipo = "11014O"; }),
         read_as<epec_nfe>, 2,
         {{"element-name", "infEvento/tpEvento"}, {"element-value", "11014O"}}},
        {"type of a manifestation", with([](auto& c) { c.tipo = "2102"; }),
         read_as<manifestacao_destinatario>, 2,
         {{"element-name", "retEvento/infEvento/tpEvento"}, {"element-value", "2102"}}},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        stack s;
        each.read(each.answer, s);
        ASSERT_EQ(s.size(), each.code == 2 ? 2u : 1u) << s.to_string();
        EXPECT_EQ(s.get_category(), velk::erp::tarn::nfe::sefaz_data::result_category::instance());
        EXPECT_EQ(s.get_value(), each.code);
        EXPECT_EQ(s.top().get_arguments(), each.expected);
    }

    stack s;
    cancelamento::from_xml(velk::xml::document(), s);
    EXPECT_EQ(s.get_value(), 5);
}

TEST(respostas_evento, a_batch_reads_each_answer_or_fails_whole)
{
    ret_evento_campos rejected;
    rejected.cstat = "217";
    rejected.motivo = "Rejeicao: NF-e nao consta na base de dados da SEFAZ";
    rejected.tipo = "";
    rejected.protocolo = "";

    stack s;
    auto const alone = cancelamento::from_xml(ret_evento_element(rejected), s);
    ASSERT_FALSE(s.has_failed()) << "a rejected event has no tpEvento" << s.to_string();
    EXPECT_EQ(alone.get_codigo_status(), 217u);

    auto const batch = lote_evento::from_xml(
        velk::test::parse_element(velk::test::lote_processado(ret_evento({}) + ret_evento(rejected))), s);
    ASSERT_EQ(s.size(), 1u) << s.to_string();
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"element-name", "retEvento/infEvento/tpEvento"}}));
    EXPECT_TRUE(batch.get_eventos().empty());
    EXPECT_EQ(batch.get_xml().get_name(), "") << "the whole batch is dropped";

    s.reset();
    auto const refused = lote_evento::from_xml(
        velk::test::parse_element(velk::test::ret_env_evento("215", "Rejeicao: Falha no schema XML", "")), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(refused.get_codigo_status(), 215u);
    EXPECT_TRUE(refused.get_eventos().empty());

    struct row {
        std::string xml;
        arguments expected;
    } const rows[] = {
        {"<retEnviNFe/>", {{"element-name", "retEnvEvento"}}},
        {"<retEnvEvento><xMotivo/></retEnvEvento>", {{"element-name", "retEnvEvento/cStat"}}},
        {"<retEnvEvento><cStat>128</cStat></retEnvEvento>", {{"element-name", "retEnvEvento/xMotivo"}}},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.xml);
        s.reset();
        lote_evento::from_xml(velk::test::parse_element(each.xml), s);
        ASSERT_EQ(s.size(), 1u) << s.to_string();
        EXPECT_EQ(s.top().get_arguments(), each.expected);
    }

    s.reset();
    resposta_evento const wrong = resposta_evento_from_xml(velk::test::parse_element("<retEnvEvento/>"), s);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"element-name", "retEvento"}}));
    EXPECT_EQ(wrong.index(), 0u);
    s.reset();
    ret_evento_campos unknown;
    unknown.tipo = "110150";
    resposta_evento_from_xml(ret_evento_element(unknown), s);
    ASSERT_EQ(s.size(), 2u) << s.to_string();
    EXPECT_EQ(s.begin()->get_category(), velk::core::converter_result_category::instance());
    EXPECT_EQ(s.top().get_arguments(),
              (arguments{{"element-name", "retEvento/infEvento/tpEvento"}, {"element-value", "110150"}}));
}

}  // namespace
