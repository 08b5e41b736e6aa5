#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn qrcode DOC.xml: the consumer QR code of an NFC-e.
class qrcode_command : public subcommand {
public:
    char const* name() const override { return "qrcode"; }
    char const* summary() const override { return "calcula o QR code de uma NFC-e (e o grava no documento)"; }
    char const* arguments() const override { return "DOC.xml --token ID [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
