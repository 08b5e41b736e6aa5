#include "cce_command.hpp"

#include "answer_fields.hpp"
#include "command_error.hpp"
#include "event_sender.hpp"
#include "option_values.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/carta_correcao.hpp>

namespace velk::tools::tarn {

namespace requisicao = erp::tarn::nfe::sefaz_data::requisicao;

cce_command::cce_command()
    : subcommand(
          {"cce", "registra uma carta de correção (evento 110110)", "CHAVE|NFEPROC.xml --correcao TEXTO [opções]",
           "Registra uma carta de correção da NF-e no autorizador. A correção tem de 15 a 1000\n"
           "caracteres; cada nova carta da mesma nota leva o número seguinte em --sequencia\n"
           "(padrão 1) e substitui as anteriores. Saída: 0 registrada (135), 1 recusada,\n"
           "2 uso inválido, 3 falha de transporte.",
           1, 1},
          joined({event_sender::option_rows(),
                  {{"correcao", "TEXTO", "texto da correção"},
                   {"sequencia", "N", "número da carta desta nota, de 1 a 20 (padrão 1)"}}}))
{
}

command_outcome cce_command::run(option_table const& options, tool_data& data)
{
    event_target const target = event_target::read(options.positionals().front());
    std::string const correcao = option_values::required(options, "correcao");
    auto const sequencia =
        static_cast<unsigned>(option_values::number("--sequencia", options.value("sequencia").value_or("1"), 1, 20));
    authority_connection const connection(options, data);
    core::result::stack stack;
    auto const carta = requisicao::carta_correcao::from_data(correcao, stack);
    throw_if_failed(stack, "carta de correção");
    auto const evento = requisicao::evento::from_data(carta, target.chave, connection.ambiente(),
                                                      answer_fields::brasilia_now(), sequencia, stack);
    throw_if_failed(stack, "evento");
    return event_sender::send(evento, connection, options.value("saida"));
}

}  // namespace velk::tools::tarn
