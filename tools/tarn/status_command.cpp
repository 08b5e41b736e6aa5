#include "status_command.hpp"

#include "answer_fields.hpp"
#include "authority_connection.hpp"
#include "exchange.hpp"
#include "model_option.hpp"
#include "option_values.hpp"

#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>

namespace velk::tools::tarn {

namespace {

// cStat of an authorizer in operation.
constexpr int em_operacao = 107;

}  // namespace

status_command::status_command()
    : subcommand({"status", "consulta o status do serviço do autorizador", "--uf UF [opções]",
                  "Pergunta ao autorizador da UF (do modelo dado) se o serviço está em operação.\n"
                  "Saída: 0 em operação (107), 1 outra resposta (paralisado: 108, 109), 2 uso inválido,\n"
                  "3 falha de transporte.",
                  0, 0},
                 joined({authority_connection::option_rows(), {model_option::row()}}))
{
}

command_outcome status_command::run(option_table const& options, tool_data& data)
{
    erp::estado const uf = option_values::required_uf(options);
    erp::tarn::modelo const modelo = model_option::read(options);
    authority_connection const connection(options, data);
    erp::tarn::nfe::servico::status_autorizador service;
    connection.configure(service);
    erp::tarn::nfe::sefaz_data::requisicao::status_autorizador request;
    request.set_versao(erp::tarn::nfe::versao::versao_4_00);
    request.set_ambiente(connection.ambiente());
    request.set_estado(uf);
    auto const answer = exchange(service, request, connection.server(web_service::status, uf, modelo), "status");

    command_outcome outcome;
    answer_fields::set_status(outcome.report, static_cast<unsigned>(answer.get_codigo_status()), answer.get_motivo());
    outcome.report.set("dhRecbto", json_value::text(answer_fields::datetime_text(answer.get_data_recebimento())));
    if (auto const average = answer.get_tempo_medio()) {
        outcome.report.set("tMed", json_value::number(static_cast<int>(*average)));
    }
    outcome.status = answer.get_codigo_status() == em_operacao ? exit_status::ok : exit_status::refused;
    return outcome;
}

}  // namespace velk::tools::tarn
