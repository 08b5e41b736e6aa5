#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn gerar NOTA.json: the unsigned document of a note.
class gerar_command : public subcommand {
public:
    gerar_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
