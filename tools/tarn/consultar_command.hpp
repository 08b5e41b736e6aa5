#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn consultar CHAVE: the situation of a note at its authorizer.
class consultar_command : public subcommand {
public:
    char const* name() const override { return "consultar"; }
    char const* summary() const override { return "consulta a situação de uma nota pela chave de acesso"; }
    char const* arguments() const override { return "CHAVE [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
