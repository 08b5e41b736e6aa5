#include <velk/core/fatal.hpp>

#include <cstdio>
#include <cstdlib>

namespace velk::core {
inline namespace v3 {

void fatal_exit(char const* message)
{
    std::fprintf(stderr, "%s", message);
    std::fflush(stderr);
    std::exit(1);
}

}  // namespace v3
}  // namespace velk::core
