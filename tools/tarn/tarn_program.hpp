#pragma once

#include "subcommand.hpp"

#include <memory>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// The command line of tarn: `tarn SUBCOMANDO [argumentos] [opções]`. Finds
// the subcommand in its table, reads its options, answers --help, runs it
// and prints its report; the exit status is the subcommand's, or 2 for bad
// usage.
class tarn_program {
public:
    // Every subcommand, in the order of the help text.
    static std::vector<std::unique_ptr<subcommand>> all_subcommands();

    explicit tarn_program(std::vector<std::unique_ptr<subcommand>> commands);

    int run(std::vector<std::string> const& words);

private:
    subcommand* find(std::string const& name) const;
    std::string general_help() const;
    static std::string help_of(subcommand const& command, option_table const& options);

    std::vector<std::unique_ptr<subcommand>> commands_;
};

}  // namespace velk::tools::tarn
