#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn recibo NREC: the outcome of an asynchronous batch.
class recibo_command : public subcommand {
public:
    recibo_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
