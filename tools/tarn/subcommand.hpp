#pragma once

#include "exit_status.hpp"
#include "json_value.hpp"
#include "option_table.hpp"
#include "tool_data.hpp"

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// What a subcommand ends with: its status and its report, printed as JSON
// with --json and as text otherwise.
struct command_outcome {
    exit_status status = exit_status::ok;
    json_value report = json_value::object();
    // The subcommand printed its report itself (a long-running one, before
    // it waits): nothing is printed at the end.
    bool printed = false;
};

// What a subcommand is to the help and to the reading of its command line.
struct subcommand_info {
    char const* name;
    char const* summary;      // one line for the list of subcommands
    char const* arguments;    // what follows the name in the usage line: "CHAVE [opções]"
    char const* description;  // the paragraphs of --help after the usage line
    std::size_t minimum_arguments = 0;
    std::size_t maximum_arguments = 0;
};

// As many positional arguments as are given.
inline constexpr std::size_t any_number = static_cast<std::size_t>(-1);

// One subcommand of tarn: its description and its table of options as data,
// and what it does. --help and --json are every subcommand's and need not be
// listed.
class subcommand {
public:
    subcommand(subcommand_info info, std::vector<option_row> options) : info_(info), options_(std::move(options)) {}
    virtual ~subcommand() = default;

    subcommand_info const& info() const { return info_; }
    char const* name() const { return info_.name; }
    std::vector<option_row> const& options() const { return options_; }

    // Throws command_error when the run cannot go on.
    virtual command_outcome run(option_table const& options, tool_data& data) = 0;

    // The text form of the report; by default each member on a line of its
    // own, "name: value", nested parts indented.
    virtual void print_text(json_value const& report, std::FILE* out) const;

private:
    subcommand_info info_;
    std::vector<option_row> options_;
};

// Prints a report as --json asks: JSON, or the subcommand's text form.
void print_outcome(subcommand const& command, json_value const& report, bool json, std::FILE* out);

// The default text form of a report.
void print_report_text(json_value const& report, std::FILE* out);

}  // namespace velk::tools::tarn
