#include "simulador_command.hpp"

#include "command_error.hpp"
#include "option_values.hpp"
#include "simulator_session.hpp"
#include "tool_paths.hpp"

#include <csignal>
#include <stdexcept>

namespace velk::tools::tarn {

simulador_command::simulador_command()
    : subcommand({"simulador", "mantém o simulador incluso em execução para outras chamadas", "--pasta PASTA",
                  "Inicia o simulador da SEFAZ incluso numa porta livre do loopback, com certificados\n"
                  "descartáveis gravados na pasta (ca.pem, cliente.pfx e senha, endereco), e o mantém até\n"
                  "receber SIGINT ou SIGTERM (Ctrl-C). Outras chamadas o usam com --sim-pasta PASTA; ele\n"
                  "lembra as notas que autorizou, e assim aceita eventos e consultas delas. Valida cada\n"
                  "mensagem nos esquemas oficiais e responde como um autorizador de homologação.",
                  0, 0},
                 {{"pasta", "PASTA", "pasta dos certificados e do endereço (criada se preciso)"}})
{
}

command_outcome simulador_command::run(option_table const& options, tool_data& data)
{
    std::filesystem::path const folder = option_values::required(options, "pasta");
    std::unique_ptr<simulator_session> session;
    try {
        session = std::make_unique<simulator_session>(tool_paths::simulator(), folder, true, data.schemas());
    } catch (std::runtime_error const& error) {
        throw command_error(exit_status::transport, failure_report::describe("simulador", error.what()));
    }
    session->publish();
    command_outcome outcome;
    outcome.report.set("endereco", json_value::text(session->endpoint()))
        .set("pasta", json_value::text(folder.string()))
        .set("uso", json_value::text("tarn <subcomando> --sim-pasta " + folder.string()));
    print_outcome(*this, outcome.report, options.has("json"), stdout);
    outcome.printed = true;

    // Blocked only now, so that the simulator, started above, still ends on
    // the SIGTERM it gets when the session goes.
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGINT);
    sigaddset(&stop, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stop, nullptr);
    int received = 0;
    sigwait(&stop, &received);
    return outcome;
}

}  // namespace velk::tools::tarn
