#pragma once

#include <pki/certificate_authority.hpp>
#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>

#include <gtest/gtest.h>

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

// The taxpayer's bundle as the library reads it, to sign with.
inline cryptography::pkcs12 const& taxpayer_pkcs12()
{
    static cryptography::pkcs12 const bundle = [] {
        auto const& certificates = test_certificates::instance();
        core::result::stack stack;
        auto read = cryptography::pkcs12::from_byte_array(certificates.pkcs12(), certificates.password(), stack);
        EXPECT_FALSE(stack.has_failed()) << stack.to_string();
        return read;
    }();
    return bundle;
}

}  // namespace velk::test
