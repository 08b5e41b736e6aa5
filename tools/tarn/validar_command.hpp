#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn validar ARQUIVO.xml...: what each message is and whether it holds
// up: schema, signatures, key, QR code.
class validar_command : public subcommand {
public:
    validar_command();
    command_outcome run(option_table const& options, tool_data& data) override;
    void print_text(json_value const& report, std::FILE* out) const override;
};

}  // namespace velk::tools::tarn
