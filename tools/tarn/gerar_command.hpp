#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn gerar NOTA.json: the unsigned document of a note.
class gerar_command : public subcommand {
public:
    char const* name() const override { return "gerar"; }
    char const* summary() const override { return "gera o documento (sem assinatura) de uma nota em JSON"; }
    char const* arguments() const override { return "NOTA.json [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
