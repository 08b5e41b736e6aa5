#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn consultar CHAVE: the situation of a note at its authorizer.
class consultar_command : public subcommand {
public:
    consultar_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
