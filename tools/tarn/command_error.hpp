#pragma once

#include "exit_status.hpp"
#include "failure_report.hpp"
#include "json_value.hpp"

#include <exception>
#include <string>

namespace velk::tools::tarn {

// A run that cannot go on: bad usage, unreadable input, a failure of the
// library at some step. Thrown inside the tool only and caught where the
// outcome is reported (the whole run, or one note of a batch).
class command_error : public std::exception {
public:
    command_error(exit_status status, json_value report) : status_(status), report_(std::move(report)) {}

    // Bad usage or input, in the tool's own words.
    static command_error usage(std::string const& step, std::string const& reason)
    {
        return command_error(exit_status::bad_input, failure_report::describe(step, reason));
    }
    // The library's failure: transport or input by what the stack holds.
    static command_error library(core::result::stack const& stack, std::string const& step)
    {
        return command_error(failure_report::classify(stack), failure_report::describe(stack, step));
    }

    char const* what() const noexcept override { return "tarn command error"; }
    exit_status status() const { return status_; }
    json_value const& report() const { return report_; }

private:
    exit_status status_;
    json_value report_;
};

// Throws command_error::library when the stack has failed.
inline void throw_if_failed(core::result::stack const& stack, std::string const& step)
{
    if (stack.has_failed()) {
        throw command_error::library(stack, step);
    }
}

}  // namespace velk::tools::tarn
