#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn gtin CODIGO: a product of the national GTIN catalogue.
class gtin_command : public subcommand {
public:
    gtin_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
