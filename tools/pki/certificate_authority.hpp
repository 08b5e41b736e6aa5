#pragma once

#include <pki/issued_certificate.hpp>

#include <memory>
#include <string>
#include <vector>

namespace velk::tools::pki {

// A self-signed certification authority made in memory with an RSA-2048 key.
class certificate_authority {
public:
    // key_bits: RSA key size of the CA and of everything it issues.
    explicit certificate_authority(std::string const& common_name = "Velk Throw-away CA", int key_bits = 2048);
    certificate_authority(certificate_authority&&) noexcept;
    certificate_authority& operator=(certificate_authority&&) noexcept;
    ~certificate_authority();

    std::string const& certificate_pem() const;

    // A TLS server certificate valid for the given DNS names and IP addresses.
    issued_certificate issue_server(std::vector<std::string> const& dns_names,
                                    std::vector<std::string> const& ip_addresses) const;
    // A TLS client and signing certificate, as an e-CNPJ carries it: the
    // common name "RAZAO SOCIAL:CNPJ".
    issued_certificate issue_client(std::string const& common_name) const;
    // A certificate valid from the given number of days ago for the given
    // number of days (negative to make an expired one).
    issued_certificate issue(std::string const& common_name, bool server, bool client,
                             std::vector<std::string> const& dns_names, std::vector<std::string> const& ip_addresses,
                             long valid_from_days_ago = 1, long valid_days = 30) const;

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace velk::tools::pki
