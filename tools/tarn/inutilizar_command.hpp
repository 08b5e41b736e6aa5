#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn inutilizar --serie S --de N --ate M --justificativa TEXTO: a range of
// numbers that will never be used.
class inutilizar_command : public subcommand {
public:
    char const* name() const override { return "inutilizar"; }
    char const* summary() const override { return "inutiliza uma faixa de números de uma série"; }
    char const* arguments() const override { return "--uf UF --serie S --de N --ate M --justificativa TEXTO"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
