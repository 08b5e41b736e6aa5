#pragma once

#include "subcommand.hpp"

namespace velk::tools::tarn {

// tarn assinar DOC.xml: the enveloped signature of an NF-e or NFC-e.
class assinar_command : public subcommand {
public:
    char const* name() const override { return "assinar"; }
    char const* summary() const override { return "assina um documento NF-e ou NFC-e com o certificado A1"; }
    char const* arguments() const override { return "DOC.xml [opções]"; }
    char const* description() const override;
    std::vector<option_spec> options() const override;
    std::size_t minimum_arguments() const override { return 1; }
    std::size_t maximum_arguments() const override { return 1; }
    command_outcome run(option_table const& options, tool_data& data) override;
};

}  // namespace velk::tools::tarn
