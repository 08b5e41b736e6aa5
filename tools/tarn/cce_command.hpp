#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn cce CHAVE --correcao TEXTO: a correction letter of an NF-e.
class cce_command : public subcommand {
public:
    cce_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
