// tarn: issues, queries, cancels and checks NF-e and NFC-e documents from the
// command line, against an authority or the bundled simulator. See --help.
#include "tarn_program.hpp"

#include <csignal>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    // A peer that goes away mid-exchange must not end the run.
    std::signal(SIGPIPE, SIG_IGN);
    std::vector<std::string> const words(argv + 1, argv + argc);
    return velk::tools::tarn::tarn_program(velk::tools::tarn::tarn_program::all_subcommands()).run(words);
}
