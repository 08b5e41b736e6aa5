#include "recibo_command.hpp"

#include "answer_fields.hpp"
#include "authority_connection.hpp"
#include "exchange.hpp"
#include "model_option.hpp"
#include "option_values.hpp"

#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>

#include <limits>

namespace velk::tools::tarn {

recibo_command::recibo_command()
    : subcommand({"recibo", "consulta o resultado de um lote pelo número do recibo", "NREC --uf UF [opções]",
                  "Pergunta ao autorizador o resultado do lote do recibo: o protocolo de cada nota.\n"
                  "Saída: 0 lote processado (104) com todas as notas autorizadas, 1 lote em processamento\n"
                  "(105), recusado ou com nota recusada, 2 uso inválido, 3 falha de transporte.",
                  1, 1},
                 joined({authority_connection::option_rows(), {model_option::row()}}))
{
}

command_outcome recibo_command::run(option_table const& options, tool_data& data)
{
    unsigned long long const receipt = option_values::number("recibo", options.positionals().front(), 1,
                                                             std::numeric_limits<unsigned long long>::max());
    erp::estado const uf = option_values::required_uf(options);
    erp::tarn::modelo const modelo = model_option::read(options);
    authority_connection const connection(options, data);
    erp::tarn::nfe::servico::consulta_recibo service;
    connection.configure(service);
    auto const request = erp::tarn::nfe::sefaz_data::requisicao::consulta_recibo::from_data(
        connection.ambiente(), erp::tarn::nfe::versao::versao_4_00, receipt, uf, modelo);
    auto const answer =
        exchange(service, request, connection.server(web_service::ret_autorizacao, uf, modelo), "consulta do recibo");

    command_outcome outcome;
    outcome.report.set("recibo", json_value::text(std::to_string(receipt)));
    answer_fields::set_status(outcome.report, answer.get_codigo_status(), answer.get_motivo());
    outcome.status = answer_fields::of_group(erp::tarn::nfe::obter_grupo_status_resposta(answer));
    json_value protocols = json_value::array();
    for (auto const& protocol : answer.get_protocolos()) {
        json_value item =
            json_value::object().set("chave", json_value::text(answer_fields::key_text(protocol.get_chave_acesso())));
        answer_fields::set_status(item, protocol.get_codigo_status(), protocol.get_motivo());
        if (auto const number = protocol.get_numero_protocolo()) {
            item.set("protocolo", json_value::text(std::to_string(*number)));
        }
        outcome.status =
            worst(outcome.status, answer_fields::of_group(erp::tarn::nfe::obter_grupo_status_resposta(protocol)));
        protocols.push(std::move(item));
    }
    outcome.report.set("protocolos", std::move(protocols));
    return outcome;
}

}  // namespace velk::tools::tarn
