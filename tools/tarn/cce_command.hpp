#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn cce CHAVE --correcao TEXTO: a correction letter of an NF-e.
class cce_command : public subcommand {
public:
    char const* name() const override { return "cce"; }
    char const* summary() const override { return "registra uma carta de correção (evento 110110)"; }
    char const* arguments() const override { return "CHAVE|NFEPROC.xml --correcao TEXTO [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
