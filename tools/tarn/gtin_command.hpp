#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn gtin CODIGO: a product of the national GTIN catalogue.
class gtin_command : public subcommand {
public:
    char const* name() const override { return "gtin"; }
    char const* summary() const override { return "consulta um GTIN no cadastro centralizado"; }
    char const* arguments() const override { return "CODIGO [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
