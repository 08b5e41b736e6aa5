#include "event_sender.hpp"

#include "answer_fields.hpp"
#include "command_error.hpp"
#include "exchange.hpp"
#include "files.hpp"

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_evento.hpp>
#include <velk/erp/tarn/nfe/servico/evento.hpp>

#include <chrono>
#include <filesystem>

namespace velk::tools::tarn {

namespace {

namespace nfe = erp::tarn::nfe;

}  // namespace

event_target event_target::read(std::string const& argument)
{
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(argument, ignored)) {
        return {answer_fields::parse_key(argument), std::nullopt};
    }
    xml::document const document = read_xml(argument);
    core::result::stack stack;
    auto const archive = nfe::sefaz_data::distribuicao::autorizacao::from_xml(*document.get_root_element(), stack);
    throw_if_failed(stack, "leitura do nfeProc");
    auto const documento = archive.get_requisicao(stack);
    auto const protocolo = archive.get_resposta(stack);
    throw_if_failed(stack, "leitura do nfeProc");
    return {documento.get_chave_acesso(), protocolo.get_numero_protocolo()};
}

std::vector<option_row> event_sender::option_rows()
{
    return joined({authority_connection::option_rows(),
                   {{"saida", "ARQUIVO", "grava o evento registrado (procEventoNFe) neste arquivo"}}});
}

command_outcome event_sender::send(nfe::sefaz_data::requisicao::evento evento, authority_connection const& connection,
                                   std::optional<std::string> const& archive)
{
    core::result::stack stack;
    evento.assinar(connection.signing_certificate(), stack);
    throw_if_failed(stack, "assinatura do evento");
    nfe::sefaz_data::requisicao::lote_evento lote;
    lote.set_id_lote(static_cast<unsigned long long>(
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::system_clock::now().time_since_epoch())
            .count()));
    lote.append(evento);
    nfe::servico::evento service;
    connection.configure(service);
    erp::tarn::chave_acesso const chave = evento.get_chave_acesso();
    auto const answer = exchange(
        service, lote, connection.server(web_service::recepcao_evento, chave.get_estado(), chave.get_modelo_chave()),
        "evento");

    command_outcome outcome;
    outcome.report.set("chave", json_value::text(answer_fields::key_text(chave)));
    json_value batch = json_value::object();
    answer_fields::set_status(batch, answer.get_codigo_status(), answer.get_motivo());
    outcome.report.set("lote", std::move(batch));
    outcome.status = answer_fields::of_group(nfe::obter_grupo_status_resposta(answer));
    auto const registered = answer.get_eventos();
    if (registered.empty()) {
        outcome.status = exit_status::refused;
        return outcome;
    }
    auto const& registro = registered.front();
    auto const& retorno = core::visit(
        [](auto const& each) -> nfe::sefaz_data::resposta::retorno_evento const& { return each; }, registro);
    answer_fields::set_status(outcome.report, retorno.get_codigo_status(), retorno.get_motivo());
    outcome.status = worst(outcome.status, answer_fields::of_group(nfe::obter_grupo_status_resposta(registro)));
    if (auto const number = retorno.get_numero_protocolo()) {
        outcome.report.set("protocolo", json_value::text(std::to_string(*number)));
    }
    if (outcome.status == exit_status::ok && archive) {
        auto const proc = nfe::sefaz_data::distribuicao::evento::from_data(evento, registro, stack);
        throw_if_failed(stack, "procEventoNFe");
        write_file(*archive, xml_text(proc.get_xml(), "procEventoNFe"));
        outcome.report.set("procEventoNFe", json_value::text(*archive));
    }
    return outcome;
}

}  // namespace velk::tools::tarn
