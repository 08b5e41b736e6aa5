// velk-sefaz-sim: a local stand-in for the SEFAZ web services, for tests, the
// demo and benchmarks. See --help.
#include "sefaz_server.hpp"
#include "simulator_options.hpp"

#include <csignal>
#include <cstdio>

int main(int argc, char** argv)
{
    using velk::tools::sefaz_sim::simulator_options;
    simulator_options options;
    std::string error;
    if (!simulator_options::parse(argc, argv, options, error)) {
        std::fprintf(stderr, "velk-sefaz-sim: %s (try --help)\n", error.c_str());
        return 2;
    }
    if (options.help) {
        std::fputs(simulator_options::usage().c_str(), stdout);
        return 0;
    }
    // A client that goes away mid-answer must not end the server.
    std::signal(SIGPIPE, SIG_IGN);
    velk::tools::sefaz_sim::sefaz_server server(std::move(options));
    return server.run();
}
