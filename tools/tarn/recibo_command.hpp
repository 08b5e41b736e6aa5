#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn recibo NREC: the outcome of an asynchronous batch.
class recibo_command : public subcommand {
public:
    char const* name() const override { return "recibo"; }
    char const* summary() const override { return "consulta o resultado de um lote pelo número do recibo"; }
    char const* arguments() const override { return "NREC --uf UF [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
