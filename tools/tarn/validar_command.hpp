#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn validar ARQUIVO.xml...: what each message is and whether it holds
// up: schema, signatures, key, QR code.
class validar_command : public subcommand {
public:
    char const* name() const override { return "validar"; }
    char const* summary() const override { return "confere esquema, assinatura, chave e QR code de documentos"; }
    char const* arguments() const override { return "ARQUIVO.xml... [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return static_cast<std::size_t>(-1); }
    command_outcome run(option_table const& options, tool_data& data) override;
    void print_text(json_value const& report, std::FILE* out) const override;
};

}  // namespace velk::tools::tarn
