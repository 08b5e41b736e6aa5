#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn cancelar CHAVE --protocolo N --justificativa TEXTO: the cancellation
// event of an authorized note.
class cancelar_command : public subcommand {
public:
    cancelar_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
