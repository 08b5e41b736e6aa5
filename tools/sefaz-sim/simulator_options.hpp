#pragma once

#include "fault.hpp"

#include <filesystem>
#include <string>

namespace velk::tools::sefaz_sim {

// The command line of the simulator.
struct simulator_options {
    std::string host = "127.0.0.1";
    int port = 0;  // 0: a free port, printed as the first line on stdout
    std::filesystem::path certificate;     // server certificate, PEM
    std::filesystem::path key;             // its private key, PEM
    std::filesystem::path client_ca;       // CA that must have signed the client's certificate, PEM
    std::filesystem::path schemas;         // folder of the official schemas; empty: no validation
    std::filesystem::path record;          // folder for each request received; empty: none
    fault injected = fault::none;
    int delay_ms = 3000;
    std::string tls_max = "1.3";  // highest TLS version offered: "1.1", "1.2" or "1.3"
    std::string redirect_to;      // every request answered with a redirect here; empty: none
    int redirect_status = 307;
    std::string ambiente = "2";   // tpAmb of this authority: "2" homologation, "1" production
    int stopped_status = 0;       // 0 in operation; 108 or 109: every service answers it
    int processing_polls = 1;     // receipt queries answered 105 before the batch's result
    bool verbose = false;
    bool help = false;

    // Reads argv; on a bad command line returns false with the reason.
    static bool parse(int argc, char** argv, simulator_options& options, std::string& error);
    static std::string usage();
};

}  // namespace velk::tools::sefaz_sim
