#include "consultar_command.hpp"

#include "answer_fields.hpp"
#include "authority_connection.hpp"
#include "exchange.hpp"

#include <velk/erp/tarn/nfe/servico/consulta.hpp>

namespace velk::tools::tarn {

consultar_command::consultar_command()
    : subcommand({"consultar", "consulta a situação de uma nota pela chave de acesso", "CHAVE [opções]",
                  "Consulta a nota no autorizador da UF e do modelo da chave: situação, protocolo de\n"
                  "autorização e quantos eventos estão registrados. Saída: 0 nota autorizada (100, 150)\n"
                  "ou cancelada (101, 151) ou denegada (110), 1 outra resposta (217: não consta),\n"
                  "2 chave inválida, 3 falha de transporte.",
                  1, 1},
                 authority_connection::option_rows())
{
}

command_outcome consultar_command::run(option_table const& options, tool_data& data)
{
    erp::tarn::chave_acesso const chave = answer_fields::parse_key(options.positionals().front());
    authority_connection const connection(options, data);
    erp::tarn::nfe::servico::consulta service;
    connection.configure(service);
    auto const request = erp::tarn::nfe::sefaz_data::requisicao::consulta::from_data(
        chave, erp::tarn::nfe::versao::versao_4_00, connection.ambiente());
    auto const answer = exchange(
        service, request,
        connection.server(web_service::consulta_protocolo, chave.get_estado(), chave.get_modelo_chave()), "consulta");

    command_outcome outcome;
    outcome.report.set("chave", json_value::text(answer_fields::key_text(chave)));
    answer_fields::set_status(outcome.report, answer.get_codigo_status(), answer.get_motivo());
    if (auto const protocol = answer.get_protocolo_nfe()) {
        if (auto const number = protocol->get_numero_protocolo()) {
            outcome.report.set("protocolo", json_value::text(std::to_string(*number)));
        }
    }
    outcome.report.set("eventos", json_value::number(static_cast<std::uint64_t>(answer.get_eventos().size())));
    outcome.status = answer_fields::of_group(erp::tarn::nfe::obter_grupo_status_resposta(answer));
    return outcome;
}

}  // namespace velk::tools::tarn
