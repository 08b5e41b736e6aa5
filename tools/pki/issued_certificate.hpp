#pragma once

#include <velk/core/byte_array.hpp>

#include <string>

namespace velk::tools::pki {

// A certificate with its private key, both as PEM text.
class issued_certificate {
public:
    issued_certificate(std::string certificate_pem, std::string private_key_pem, std::string ca_certificate_pem)
        : certificate_pem_(std::move(certificate_pem)),
          private_key_pem_(std::move(private_key_pem)),
          ca_certificate_pem_(std::move(ca_certificate_pem))
    {
    }

    std::string const& certificate_pem() const { return certificate_pem_; }
    std::string const& private_key_pem() const { return private_key_pem_; }
    core::byte_array certificate_der() const;

    // The certificate, its key and the issuing CA as a PKCS#12 bundle (.pfx),
    // protected by the password, as a taxpayer's A1 certificate file comes.
    core::byte_array to_pkcs12(std::string const& password) const;

private:
    std::string certificate_pem_;
    std::string private_key_pem_;
    std::string ca_certificate_pem_;
};

}  // namespace velk::tools::pki
