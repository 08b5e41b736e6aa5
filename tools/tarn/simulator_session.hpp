#pragma once

#include <sefaz-sim/launch/loopback_pki.hpp>
#include <sefaz-sim/launch/simulator_process.hpp>

#include <filesystem>
#include <memory>
#include <string>

namespace velk::tools::tarn {

// The bundled SEFAZ simulator running on a free loopback port for as long as
// this object lives, with throw-away certificates (a CA, the server's, and a
// taxpayer's client certificate) made in `folder`. It validates every message
// against the bundled schemas and acts as an authority of the test
// environment: what it authorizes it remembers while it runs.
class simulator_session {
public:
    // The files a folder holds for other runs of tarn (--sim-pasta).
    static constexpr char ca_file[] = "ca.pem";
    static constexpr char pfx_file[] = "cliente.pfx";
    static constexpr char password_file[] = "senha";
    static constexpr char endpoint_file[] = "endereco";

    // Throws std::runtime_error when the simulator does not start. The folder
    // is removed at the end unless `keep`.
    simulator_session(std::filesystem::path const& simulator, std::filesystem::path folder, bool keep,
                      std::filesystem::path const& schemas);
    ~simulator_session();
    simulator_session(simulator_session const&) = delete;
    simulator_session& operator=(simulator_session const&) = delete;

    // "https://127.0.0.1:<port>/": every service of the simulator answers
    // under any path.
    std::string endpoint() const;
    sefaz_sim::loopback_pki const& pki() const { return *pki_; }
    std::filesystem::path const& folder() const { return folder_; }

    // Writes the client certificate, its password and the address into the
    // folder, for --sim-pasta.
    void publish() const;

    // A fresh folder under the system's temporary folder.
    static std::filesystem::path temporary_folder();

private:
    std::filesystem::path folder_;
    bool keep_;
    std::unique_ptr<sefaz_sim::loopback_pki> pki_;
    std::unique_ptr<sefaz_sim::simulator_process> process_;
};

}  // namespace velk::tools::tarn
