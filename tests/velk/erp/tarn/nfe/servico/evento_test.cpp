// The event service: its first checks, and the answers of each status group
// through the whole transport, from a server of fixed answers.
#include "../sefaz_data/requisicao/evento_teste.hpp"
#include "../sefaz_data/resposta/evento_respostas_teste.hpp"
#include "servicos_teste.hpp"

#include <support/canned_authority.hpp>
#include <support/files.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>
#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>
#include <velk/erp/tarn/nfe/servico/evento.hpp>
#include <velk/erp/tarn/nfe/servico_evento_result_category.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
namespace resposta = nfe::sefaz_data::resposta;
using velk::core::result::stack;
using velk::erp::tarn::ambiente;
using arguments = std::vector<std::pair<std::string, std::string>>;
using servico_evento = nfe::servico::evento;
using velk::test::ready;
using velk::test::server;

requisicao::lote_evento batch_of(std::vector<requisicao::evento> const& eventos)
{
    requisicao::lote_evento batch;
    batch.set_id_lote(1);
    for (requisicao::evento const& each : eventos) {
        batch.append(each);
    }
    return batch;
}

requisicao::evento substitution(char const* chave, velk::core::optional<std::string> const& substituta)
{
    stack s;
    auto const payload = requisicao::cancelamento::from_data("Venda registrada em contingencia", 135240000000017, 35,
                                                             "pdv", velk::test::chave_de_texto(substituta.value()), s);
    auto made = requisicao::evento::from_data(payload, velk::test::chave_de_texto(chave), ambiente::homologacao,
                                              velk::test::momento_evento(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return made;
}

// A substitution read from a tree without chNFeRef.
requisicao::evento substitution_without_substitute()
{
    stack s;
    std::string text = velk::test::saved_text(substitution(velk::test::chave_nfce_sp, velk::test::chave_nfce_offline)
                                                  .get_xml());
    std::size_t const begin = text.find("<chNFeRef>");
    text.erase(begin, text.find("</chNFeRef>") + 11 - begin);
    auto read = requisicao::evento::from_xml(velk::test::parse_element(text), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return read;
}

TEST(servico_evento, first_checks_report_before_anything_is_sent)
{
    auto const& servico = nfe::servico_result_category::instance();
    stack made;
    requisicao::evento const ordinary = velk::test::eventos_de_exemplo()[0].make(made);
    struct row {
        char const* name;
        requisicao::lote_evento batch;
        velk::core::result::category const& category;
        int code;
        arguments expected;
    } const rows[] = {
        {"empty batch", batch_of({}), nfe::servico_evento_result_category::instance(), 1, {}},
        {"substitution of an NF-e", batch_of({substitution(velk::test::chave_nfe_sp, velk::test::chave_nfce_offline)}),
         servico, 15, {{"valor_esperado", "1"}, {"valor_recebido", "0"}}},
        {"substitution of an NFC-e issued offline",
         batch_of({substitution(velk::test::chave_nfce_offline, velk::test::chave_nfce_offline)}), servico, 14,
         {{"valor_esperado", "0"}, {"valor_recebido", "7"}}},
        {"substitute issued normally",
         batch_of({ordinary, substitution(velk::test::chave_nfce_sp, velk::test::chave_nfce_sp)}),
         servico, 14, {{"valor_esperado", "7"}, {"valor_recebido", "0"}}},
        {"no substitute", batch_of({substitution_without_substitute()}), servico, 13, {}},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        stack s;
        auto const answer = ready<servico_evento>().executar(each.batch, nfe::web_server_info(), s);
        ASSERT_EQ(s.size(), 1u) << s.to_string();
        EXPECT_EQ(s.get_category(), each.category);
        EXPECT_EQ(s.get_value(), each.code);
        EXPECT_EQ(s.top().get_arguments(), each.expected);
        EXPECT_EQ(answer.get_xml().get_name(), "");
    }
    stack s;
    s.push_item(servico, 3);
    ready<servico_evento>().executar(rows[1].batch, nfe::web_server_info(), s);
    EXPECT_EQ(s.size(), 1u) << "a fresh report replaces what the stack held: " << s.to_string();
}

TEST(servico_evento, answers_of_each_status_group_through_the_transport)
{
    using velk::test::lote_processado;
    using velk::test::ret_evento;
    velk::test::ret_evento_campos duplicate;
    duplicate.cstat = "573";
    duplicate.motivo = "Rejeicao: Duplicidade de Evento";
    duplicate.protocolo = "";
    velk::test::ret_evento_campos epec;
    epec.cstat = "136";
    epec.tipo = "110140";
    struct row {
        char const* name;
        char const* result_tag;
        std::string answer;
        int batch_group;
        std::vector<int> event_groups;
    } const rows[] = {
        {"cancellation registered", "nfeRecepcaoEventoResult", lote_processado(ret_evento({})), 0, {0}},
        {"duplicate cancellation and EPEC", "nfeResultMsg", lote_processado(ret_evento(duplicate) + ret_evento(epec)),
         0, {3, 0}},
        {"authority's unknown error", "nfeResultMsg",
         velk::test::ret_env_evento("999", "Rejeicao: Erro nao catalogado", ""), 1, {}},
        {"service down", "nfeResultMsg",
         velk::test::ret_env_evento("108", "Servico Paralisado Momentaneamente (curto prazo)", ""), 2, {}},
        {"service stopped", "nfeResultMsg", velk::test::ret_env_evento("109", "Servico Paralisado sem Previsao", ""),
         2, {}},
        {"batch refused", "nfeResultMsg", velk::test::ret_env_evento("215", "Rejeicao: Falha no schema XML", ""), 3,
         {}},
    };
    stack made;
    auto const examples = velk::test::eventos_de_exemplo();
    requisicao::evento cancel = examples[0].make(made);
    requisicao::evento manifest = examples[5].make(made);
    cancel.assinar(velk::test::taxpayer_pkcs12(), made);
    manifest.assinar(velk::test::taxpayer_pkcs12(), made);
    ASSERT_FALSE(made.has_failed()) << made.to_string();

    servico_evento service = ready<servico_evento>();
    service.set_versao(nfe::versao::versao_4_00);
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        velk::test::canned_authority const authority(velk::test::soap_envelope(each.result_tag, each.answer));
        stack s;
        auto const answer = service.executar(batch_of({cancel, manifest}), server(authority.url()), s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(nfe::obter_grupo_status_resposta(answer), each.batch_group);
        std::vector<int> groups;
        for (resposta::resposta_evento const& event : answer.get_eventos()) {
            groups.push_back(nfe::obter_grupo_status_resposta(event));
        }
        EXPECT_EQ(groups, each.event_groups);

        ASSERT_EQ(authority.received().size(), 1u);
        std::string const sent = authority.received().front();
        std::string const header = sent.substr(0, sent.find("</soap:Header>"));
        EXPECT_NE(header.find("<cUF>SP</cUF>"), std::string::npos) << "the state of the first key: " << header;
        EXPECT_NE(header.find("<versaoDados>1.00</versaoDados>"), std::string::npos)
            << "the version of the event layout, whatever the service's: " << header;
        EXPECT_NE(sent.find(velk::test::saved_text(batch_of({cancel, manifest}).get_xml(s)).substr(39)),
                  std::string::npos)
            << "the batch as it was signed";
    }
    EXPECT_EQ(service.get_versao(), nfe::versao::versao_4_00);
}

TEST(servico_evento, an_answer_under_the_tag_of_another_operation_is_not_taken)
{
    velk::test::canned_authority const authority(
        velk::test::soap_envelope("nfeStatusServicoNFResult", velk::test::lote_processado("")));
    stack s;
    ready<servico_evento>().executar(batch_of({velk::test::eventos_de_exemplo()[2].make(s)}), server(authority.url()),
                                     s);
    ASSERT_EQ(s.size(), 2u) << s.to_string();
    EXPECT_EQ(s.get_value(), 11);
    EXPECT_EQ(s.begin()->get_category(), nfe::processo_recuperar_resposta_result_category::instance());
    EXPECT_EQ(*s.begin()->find_argument("valid_element_names"), "[nfeRecepcaoEventoResult, nfeResultMsg]");
}

TEST(obter_grupo_status_resposta, success_is_by_answer_and_the_rest_by_code)
{
    auto const event_answer = [](char const* cstat, char const* tipo) {
        velk::test::ret_evento_campos campos;
        campos.cstat = cstat;
        campos.tipo = tipo;
        stack s;
        auto read = resposta::resposta_evento_from_xml(velk::test::parse_element(velk::test::ret_evento(campos)), s);
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        return read;
    };
    struct row {
        char const* cstat;
        char const* tipo;
        int group;
    } const rows[] = {
        {"135", "110111", 0}, {"151", "110112", 0}, {"136", "110111", 3}, {"135", "110110", 0},
        {"151", "110110", 3}, {"136", "110140", 0}, {"135", "110140", 3}, {"135", "210200", 0},
        {"136", "210240", 0}, {"999", "110110", 1}, {"108", "110140", 2}, {"109", "210210", 2},
        {"573", "110111", 3}, {"0", "110111", 3},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(std::string(each.cstat) + " " + each.tipo);
        EXPECT_EQ(nfe::obter_grupo_status_resposta(event_answer(each.cstat, each.tipo)), each.group);
    }
}

// The answer in `element` of a sample, its first cStat set to `cstat`, read
// into its class and sorted.
template <class Resposta>
int group_of(std::string const& text, char const* element, std::string const& cstat)
{
    velk::xml::document const document = velk::test::parse_or_fail(text);
    std::string answer =
        velk::test::saved_text(*velk::test::first_element_named(*document.get_root_element(), element));
    std::size_t const begin = answer.find("<cStat>") + 7;
    answer.replace(begin, answer.find("</cStat>") - begin, cstat);
    stack s;
    auto const read = Resposta::from_xml(velk::test::parse_element(answer), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return nfe::obter_grupo_status_resposta(read);
}

TEST(obter_grupo_status_resposta, answers_to_the_documents)
{
    auto const sample = [](char const* file) { return velk::test::read_text(velk::test::sample(file)); };
    std::string const consulta = "<retConsSitNFe><cStat>100</cStat><xMotivo/>"
                                 "<dhRecbto>2024-05-14T18:43:02-03:00</dhRecbto></retConsSitNFe>";
    std::string const inutilizacao = sample("soap/res_inut.xml");
    std::string const protocolo = sample("messages/2017protocoled.xml");
    std::string const lote = sample("soap/exemplo_retorno_sucesso_envia_lote.xml");
    struct row {
        char const* name;
        int group;
        int expected;
    } const rows[] = {
        {"query of a denied note", group_of<resposta::consulta>(consulta, "retConsSitNFe", "110"), 0},
        {"query of a cancelled note", group_of<resposta::consulta>(consulta, "retConsSitNFe", "101"), 0},
        {"query of an unknown key", group_of<resposta::consulta>(consulta, "retConsSitNFe", "217"), 3},
        {"disablement", group_of<resposta::inutilizacao>(inutilizacao, "retInutNFe", "102"), 0},
        {"disablement, service down", group_of<resposta::inutilizacao>(inutilizacao, "retInutNFe", "108"), 2},
        {"authorized out of time", group_of<resposta::protocolo_nfe>(protocolo, "protNFe", "150"), 0},
        {"denied", group_of<resposta::protocolo_nfe>(protocolo, "protNFe", "110"), 3},
        {"batch processed", group_of<resposta::lote_autorizacao>(lote, "retEnviNFe", "104"), 0},
        {"batch, unknown error", group_of<resposta::lote_autorizacao>(lote, "retEnviNFe", "999"), 1},
    };
    for (row const& each : rows) {
        EXPECT_EQ(each.group, each.expected) << each.name;
    }
}

}  // namespace
