#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn simulador --pasta DIR: the bundled simulator left running for other
// runs of tarn (--sim-pasta DIR), until interrupted.
class simulador_command : public subcommand {
public:
    simulador_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
