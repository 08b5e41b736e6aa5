#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn emitir NOTA.json...: each note generated, given its QR code when it is
// an NFC-e, signed, authorized, and archived as nfeProc.
class emitir_command : public subcommand {
public:
    char const* name() const override { return "emitir"; }
    char const* summary() const override { return "gera, assina e autoriza notas em JSON; grava o nfeProc"; }
    char const* arguments() const override { return "NOTA.json... [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return static_cast<std::size_t>(-1); }
    command_outcome run(option_table const& options, tool_data& data) override;
    void print_text(json_value const& report, std::FILE* out) const override;
};

}  // namespace velk::tools::tarn
