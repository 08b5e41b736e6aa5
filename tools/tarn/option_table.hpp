#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velk::tools::tarn {

// One long option of a subcommand: its name without the dashes, the name of
// its value in the help (empty for a flag) and one line of help.
struct option_row {
    std::string_view name;
    std::string_view value;
    std::string_view help;
};

// The tables of several groups of options, in order.
std::vector<option_row> joined(std::initializer_list<std::vector<option_row>> groups);

// The words of a command line read against a table of options: "--name
// value", "--name=value" or "--name" for a flag; "--" ends the options; any
// other word is a positional argument. An option given twice keeps both
// values, and value() gives the last.
class option_table {
public:
    explicit option_table(std::vector<option_row> rows);

    // False with the reason for an unknown option, a flag given a value, or a
    // missing value.
    bool parse(std::vector<std::string> const& words, std::string& error);

    bool has(std::string_view name) const;
    std::optional<std::string> value(std::string_view name) const;
    std::vector<std::string> const& positionals() const { return positionals_; }
    std::vector<option_row> const& rows() const { return rows_; }

    // The options' part of a help text, one per line, aligned.
    std::string help() const;

private:
    option_row const* find(std::string_view name) const;

    std::vector<option_row> rows_;
    std::map<std::string, std::vector<std::string>, std::less<>> given_;
    std::vector<std::string> positionals_;
};

}  // namespace velk::tools::tarn
