#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn status: is the authorizer of a state in operation?
class status_command : public subcommand {
public:
    status_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
