#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn cancelar CHAVE --protocolo N --justificativa TEXTO: the cancellation
// event of an authorized note.
class cancelar_command : public subcommand {
public:
    char const* name() const override { return "cancelar"; }
    char const* summary() const override { return "cancela uma nota autorizada (evento 110111)"; }
    char const* arguments() const override { return "CHAVE|NFEPROC.xml --justificativa TEXTO [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
