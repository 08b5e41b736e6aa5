#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn status: is the authorizer of a state in operation?
class status_command : public subcommand {
public:
    char const* name() const override { return "status"; }
    char const* summary() const override { return "consulta o status do serviço do autorizador"; }
    char const* arguments() const override { return "--uf UF [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
