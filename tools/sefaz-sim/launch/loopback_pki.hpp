#pragma once

#include <pki/certificate_authority.hpp>
#include <velk/core/byte_array.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace velk::tools::sefaz_sim {

// Throw-away TLS material for a simulator on the loopback, written into a
// folder: a CA (ca.pem), a server certificate for localhost and 127.0.0.1
// (server.pem, server-key.pem), and a taxpayer's client certificate of the
// same CA as a PKCS#12 bundle (in memory). Never for production use.
class loopback_pki {
public:
    explicit loopback_pki(std::filesystem::path folder, std::string password = "velk-sim-1234");

    std::filesystem::path const& ca_file() const { return ca_file_; }
    std::filesystem::path const& server_certificate_file() const { return server_certificate_file_; }
    std::filesystem::path const& server_key_file() const { return server_key_file_; }
    core::byte_array const& client_pkcs12() const { return client_pkcs12_; }
    // The same client certificate and key as PEM, for tools that want files.
    pki::issued_certificate const& client() const { return client_; }
    std::string const& password() const { return password_; }
    pki::certificate_authority const& authority() const { return authority_; }

    // --cert, --key and --client-ca for the simulator.
    std::vector<std::string> server_arguments() const;

private:
    pki::certificate_authority authority_;
    std::string password_;
    std::filesystem::path ca_file_;
    std::filesystem::path server_certificate_file_;
    std::filesystem::path server_key_file_;
    pki::issued_certificate client_;
    core::byte_array client_pkcs12_;
};

}  // namespace velk::tools::sefaz_sim
