#pragma once

#include <pki/certificate_authority.hpp>
#include <velk/core/byte_array.hpp>

#include <string>

namespace velk::test {

// One throw-away CA and one taxpayer certificate issued by it, made on first
// use and shared by the tests of one program (RSA key generation is slow).
class test_certificates {
public:
    static test_certificates const& instance();

    std::string const& ca_pem() const { return authority_.certificate_pem(); }
    tools::pki::issued_certificate const& taxpayer() const { return taxpayer_; }
    // A second certificate of the same CA, for "wrong key" cases.
    tools::pki::issued_certificate const& other() const { return other_; }
    // taxpayer() as a .pfx file protected by password().
    core::byte_array const& pkcs12() const { return pkcs12_; }
    std::string const& password() const { return password_; }

private:
    test_certificates();

    tools::pki::certificate_authority authority_;
    tools::pki::issued_certificate taxpayer_;
    tools::pki::issued_certificate other_;
    std::string password_;
    core::byte_array pkcs12_;
};

}  // namespace velk::test
