#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn qrcode DOC.xml: the consumer QR code of an NFC-e.
class qrcode_command : public subcommand {
public:
    qrcode_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
