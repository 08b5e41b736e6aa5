#pragma once

#include <velk/core/export.hpp>

namespace velk::core {
inline namespace v3 {

// Ends the process after a defect in the calling code (an empty optional read,
// a valueless variant visited, a code number without a message). Bad data never
// comes here: it travels on a result::stack. The message goes to stderr as it
// stands, without a line ending, and the process exits with status 1.
[[noreturn]] VELK_EXPORT void fatal_exit(char const* message);

}  // namespace v3
}  // namespace velk::core
