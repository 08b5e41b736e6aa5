#include "cancelar_command.hpp"

#include "answer_fields.hpp"
#include "command_error.hpp"
#include "event_sender.hpp"
#include "option_values.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/cancelamento.hpp>

#include <limits>

namespace velk::tools::tarn {

namespace requisicao = erp::tarn::nfe::sefaz_data::requisicao;

cancelar_command::cancelar_command()
    : subcommand({"cancelar", "cancela uma nota autorizada (evento 110111)",
                  "CHAVE|NFEPROC.xml --justificativa TEXTO [opções]",
                  "Registra o cancelamento da nota no autorizador. A nota vem pela chave, com o protocolo\n"
                  "de autorização em --protocolo, ou pelo seu nfeProc, que traz os dois. A justificativa\n"
                  "tem de 15 a 255 caracteres. Saída: 0 registrado (135, 151), 1 recusado, 2 uso inválido,\n"
                  "3 falha de transporte.",
                  1, 1},
                 joined({event_sender::option_rows(),
                         {{"protocolo", "N", "protocolo de autorização da nota"},
                          {"justificativa", "TEXTO", "motivo do cancelamento"}}}))
{
}

command_outcome cancelar_command::run(option_table const& options, tool_data& data)
{
    event_target target = event_target::read(options.positionals().front());
    if (auto const given = options.value("protocolo")) {
        target.protocolo =
            option_values::number("--protocolo", *given, 1, std::numeric_limits<unsigned long long>::max());
    }
    if (!target.protocolo) {
        throw command_error::usage("opções", "informe --protocolo (ou dê o nfeProc da nota)");
    }
    std::string const justificativa = option_values::required(options, "justificativa");
    authority_connection const connection(options, data);
    core::result::stack stack;
    auto const cancelamento = requisicao::cancelamento::from_data(justificativa, *target.protocolo, stack);
    throw_if_failed(stack, "cancelamento");
    auto const evento = requisicao::evento::from_data(cancelamento, target.chave, connection.ambiente(),
                                                      answer_fields::brasilia_now(), stack);
    throw_if_failed(stack, "evento");
    return event_sender::send(evento, connection, options.value("saida"));
}

}  // namespace velk::tools::tarn
