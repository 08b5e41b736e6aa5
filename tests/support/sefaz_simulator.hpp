#pragma once

#include <sefaz-sim/launch/loopback_pki.hpp>
#include <sefaz-sim/launch/simulator_process.hpp>
#include <velk/core/byte_array.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace velk::test {

// The SEFAZ simulator of this build, running for the life of the object on a
// free loopback port, with the official schemas and a fresh folder that
// records every request it receives. Its certificates come from pki().
class sefaz_simulator {
public:
    // `options` are added to the command line ("--fault", "http-500", ...).
    explicit sefaz_simulator(std::vector<std::string> const& options = {});

    int port() const { return process_.port(); }
    // https://127.0.0.1:<port><path>
    std::string url(std::string const& path = "/ws/NFeStatusServico4.asmx") const { return process_.url(path); }

    // The bodies of the requests received so far, in order of arrival, and the
    // request line and headers of each.
    std::vector<core::byte_array> recorded_requests() const;
    std::vector<std::string> recorded_headers() const;

    // Made once per test program (in the build tree, removed at exit): the CA
    // the server's and the client's certificates come from.
    static tools::sefaz_sim::loopback_pki const& pki();

private:
    // A folder removed with its contents when it goes.
    struct scratch_folder {
        std::filesystem::path path;
        ~scratch_folder();
    };

    scratch_folder record_;
    tools::sefaz_sim::simulator_process process_;
};

}  // namespace velk::test
