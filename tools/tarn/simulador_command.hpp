#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn simulador --pasta DIR: the bundled simulator left running for other
// runs of tarn (--sim-pasta DIR), until interrupted.
class simulador_command : public subcommand {
public:
    char const* name() const override { return "simulador"; }
    char const* summary() const override { return "mantém o simulador incluso em execução para outras chamadas"; }
    char const* arguments() const override { return "--pasta PASTA"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
