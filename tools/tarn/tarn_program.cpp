#include "tarn_program.hpp"

#include "assinar_command.hpp"
#include "cancelar_command.hpp"
#include "cce_command.hpp"
#include "command_error.hpp"
#include "consultar_command.hpp"
#include "emitir_command.hpp"
#include "gerar_command.hpp"
#include "gtin_command.hpp"
#include "inutilizar_command.hpp"
#include "qrcode_command.hpp"
#include "recibo_command.hpp"
#include "simulador_command.hpp"
#include "status_command.hpp"
#include "validar_command.hpp"

#include <velk/erp/tarn/versao_biblioteca.hpp>

#include <algorithm>
#include <cstdio>
#include <exception>

namespace velk::tools::tarn {

namespace {

// What every subcommand takes besides its own options.
std::vector<option_row> const common_options = {
    {"json", "", "imprime o resultado em JSON"},
    {"help", "", "mostra esta ajuda"},
};

int usage_error(std::string const& command, std::string const& reason)
{
    std::fprintf(stderr, "tarn%s%s: %s (veja tarn %s--help)\n", command.empty() ? "" : " ", command.c_str(),
                 reason.c_str(), command.empty() ? "" : (command + " ").c_str());
    return static_cast<int>(exit_status::bad_input);
}

}  // namespace

std::vector<std::unique_ptr<subcommand>> tarn_program::all_subcommands()
{
    std::vector<std::unique_ptr<subcommand>> all;
    all.push_back(std::make_unique<emitir_command>());
    all.push_back(std::make_unique<gerar_command>());
    all.push_back(std::make_unique<qrcode_command>());
    all.push_back(std::make_unique<assinar_command>());
    all.push_back(std::make_unique<validar_command>());
    all.push_back(std::make_unique<status_command>());
    all.push_back(std::make_unique<consultar_command>());
    all.push_back(std::make_unique<recibo_command>());
    all.push_back(std::make_unique<cancelar_command>());
    all.push_back(std::make_unique<cce_command>());
    all.push_back(std::make_unique<inutilizar_command>());
    all.push_back(std::make_unique<gtin_command>());
    all.push_back(std::make_unique<simulador_command>());
    return all;
}

tarn_program::tarn_program(std::vector<std::unique_ptr<subcommand>> commands) : commands_(std::move(commands)) {}

subcommand* tarn_program::find(std::string const& name) const
{
    auto const found =
        std::find_if(commands_.begin(), commands_.end(),
                     [&](std::unique_ptr<subcommand> const& command) { return name == command->name(); });
    return found == commands_.end() ? nullptr : found->get();
}

std::string tarn_program::general_help() const
{
    std::string text =
        "uso: tarn SUBCOMANDO [argumentos] [opções]\n\n"
        "Emite, consulta, cancela e confere NF-e e NFC-e com a biblioteca velk-erp-tarn " +
        std::string(erp::tarn::get_versao_biblioteca()) +
        ",\ncontra um autorizador real ou o simulador incluso (--sim).\n\nSubcomandos:\n";
    for (auto const& command : commands_) {
        std::string const name = command->name();
        text += "  " + name + std::string(12 - std::min<std::size_t>(name.size(), 11), ' ') + command->info().summary +
                "\n";
    }
    text +=
        "\nSaída: 0 sucesso, 1 recusa do autorizador, 2 uso ou entrada inválidos, 3 falha de transporte.\n"
        "Segredos (senha do certificado, CSC) só de arquivo ou variável de ambiente, nunca da\n"
        "linha de comando. Ajuda de cada subcomando: tarn SUBCOMANDO --help.\n";
    return text;
}

std::string tarn_program::help_of(subcommand const& command, option_table const& options)
{
    return "uso: tarn " + std::string(command.name()) + " " + command.info().arguments + "\n\n" +
           command.info().description + "\n\nOpções:\n" + options.help();
}

int tarn_program::run(std::vector<std::string> const& words)
{
    if (words.empty()) {
        std::fputs(general_help().c_str(), stderr);
        return static_cast<int>(exit_status::bad_input);
    }
    if (words.front() == "--help" || words.front() == "-h" || words.front() == "ajuda") {
        std::fputs(general_help().c_str(), stdout);
        return static_cast<int>(exit_status::ok);
    }
    if (words.front() == "--version") {
        std::printf("tarn %s\n", erp::tarn::get_versao_biblioteca());
        return static_cast<int>(exit_status::ok);
    }
    subcommand* const command = find(words.front());
    if (command == nullptr) {
        return usage_error("", "subcomando desconhecido: " + words.front());
    }
    std::vector<option_row> rows = command->options();
    rows.insert(rows.end(), common_options.begin(), common_options.end());
    option_table options(std::move(rows));
    std::string error;
    if (!options.parse(std::vector<std::string>(words.begin() + 1, words.end()), error)) {
        return usage_error(command->name(), error);
    }
    if (options.has("help")) {
        std::fputs(help_of(*command, options).c_str(), stdout);
        return static_cast<int>(exit_status::ok);
    }
    std::size_t const given = options.positionals().size();
    if (given < command->info().minimum_arguments || given > command->info().maximum_arguments) {
        return usage_error(command->name(), "argumentos: " + std::string(command->info().arguments));
    }

    bool const json = options.has("json");
    command_outcome outcome;
    try {
        tool_data data;
        outcome = command->run(options, data);
    } catch (command_error const& failure) {
        outcome.status = failure.status();
        outcome.report = json_value::object().set("erro", failure.report());
        print_outcome(*command, outcome.report, json, json ? stdout : stderr);
        return static_cast<int>(outcome.status);
    } catch (std::exception const& failure) {
        outcome.status = exit_status::bad_input;
        outcome.report = json_value::object().set("erro", failure_report::describe(command->name(), failure.what()));
        print_outcome(*command, outcome.report, json, json ? stdout : stderr);
        return static_cast<int>(outcome.status);
    }
    if (!outcome.printed) {
        print_outcome(*command, outcome.report, json, stdout);
    }
    return static_cast<int>(outcome.status);
}

}  // namespace velk::tools::tarn
