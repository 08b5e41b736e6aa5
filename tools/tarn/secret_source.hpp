#pragma once

#include "option_table.hpp"

#include <optional>
#include <string>

namespace velk::tools::tarn {

// A secret (the certificate's password, the CSC) from a file named by an
// option or from an environment variable: never from a word of the command
// line, which any user of the machine may read in the process list. The file
// wins over the variable; one line feed (or CR LF) at the end of the file is
// not part of the secret. The secret is never printed.
class secret_source {
public:
    secret_source(char const* file_option, char const* variable) : file_option_(file_option), variable_(variable) {}

    // nullopt when neither gives one; on an unreadable file, nullopt with the
    // reason in `error`.
    std::optional<std::string> read(option_table const& options, std::string& error) const;

    char const* file_option() const { return file_option_; }
    char const* variable() const { return variable_; }

private:
    char const* file_option_;
    char const* variable_;
};

}  // namespace velk::tools::tarn
