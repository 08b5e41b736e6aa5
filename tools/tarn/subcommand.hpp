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

// One subcommand of tarn. Its options are a table; --help and --json are
// every subcommand's and need not be listed.
class subcommand {
public:
    virtual ~subcommand() = default;

    virtual char const* name() const = 0;
    // One line for the list of subcommands.
    virtual char const* summary() const = 0;
    // What follows the name in the usage line: "CHAVE [opções]".
    virtual char const* arguments() const = 0;
    // Paragraphs of --help after the usage line.
    virtual char const* description() const = 0;
    virtual std::vector<option_spec> options() const = 0;
    // How many positional arguments it takes.
    virtual std::size_t minimum_arguments() const { return 0; }
    virtual std::size_t maximum_arguments() const { return 0; }

    // Throws command_error when the run cannot go on.
    virtual command_outcome run(option_table const& options, tool_data& data) = 0;

    // The text form of the report; by default each member on a line of its
    // own, "name: value", nested parts indented.
    virtual void print_text(json_value const& report, std::FILE* out) const;
};

// Prints a report as --json asks: JSON, or the subcommand's text form.
void print_outcome(subcommand const& command, json_value const& report, bool json, std::FILE* out);

// The default text form of a report.
void print_report_text(json_value const& report, std::FILE* out);

}  // namespace velk::tools::tarn
