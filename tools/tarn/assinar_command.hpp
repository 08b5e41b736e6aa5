#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn assinar DOC.xml: the enveloped signature of an NF-e or NFC-e.
class assinar_command : public subcommand {
public:
    assinar_command();
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
