#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn emitir NOTA.json...: each note generated, given its QR code when it is
// an NFC-e, signed, authorized, and archived as nfeProc.
class emitir_command : public subcommand {
public:
    emitir_command();
    command_outcome run(option_table const& options, tool_data& data) override;
    void print_text(json_value const& report, std::FILE* out) const override;
};

}  // namespace velk::tools::tarn
