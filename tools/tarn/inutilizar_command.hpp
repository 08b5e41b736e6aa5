#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn inutilizar --serie S --de N --ate M --justificativa TEXTO: a range of
// numbers that will never be used.
class inutilizar_command : public subcommand {
public:
    inutilizar_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
