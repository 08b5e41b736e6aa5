#pragma once

#include <velk/core/result/stack.hpp>

#include <string>

namespace velk::test {

// A failure report in one line, for tables of expected failures: the items
// from the bottom of the stack up, " / " between them, each its category's
// name, its code and its arguments as key=value in their order:
// "core-converter 2 / erp-tarn-sefaz-data 9 request-name=inutilizacao field-name=serie".
// Empty for a stack without failure.
inline std::string report_line(core::result::stack const& stack)
{
    std::string line;
    for (auto const& item : stack) {
        if (!line.empty()) {
            line += " / ";
        }
        line += item.get_category().get_name();
        line += ' ';
        line += std::to_string(item.get_value());
        for (auto const& [key, value] : item.get_arguments()) {
            line += ' ' + key + '=' + value;
        }
    }
    return line;
}

}  // namespace velk::test
