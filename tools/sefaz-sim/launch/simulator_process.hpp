#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace velk::tools::sefaz_sim {

// A simulator running as a child process for as long as this object lives:
// started with --port 0, its port read from the first line it prints, ended
// with SIGTERM at destruction (and by the kernel if this process dies first).
class simulator_process {
public:
    // Throws std::runtime_error when the program does not start or prints no
    // port within 30 seconds.
    simulator_process(std::filesystem::path const& program, std::vector<std::string> const& arguments);
    ~simulator_process();
    simulator_process(simulator_process const&) = delete;
    simulator_process& operator=(simulator_process const&) = delete;

    int port() const { return port_; }
    // "https://127.0.0.1:<port>" + path.
    std::string url(std::string const& path) const;

    // The simulator built in the same tree as the running program, which is a
    // tool beside it (tools/<name>/<program>): ../sefaz-sim/velk-sefaz-sim.
    static std::filesystem::path beside_this_program();

private:
    pid_t pid_ = -1;
    int port_ = 0;
};

}  // namespace velk::tools::sefaz_sim
