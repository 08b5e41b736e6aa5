#pragma once

// The signing certificate of the benchmarks: made once per program by a
// throw-away CA (RSA-2048, as a taxpayer's A1 certificate).

#include <pki/certificate_authority.hpp>
#include <velk/cryptography/pkcs12.hpp>

#include <stdexcept>
#include <string>

namespace velk::bench {

inline cryptography::pkcs12 const& throwaway_certificate()
{
    static cryptography::pkcs12 const bundle = [] {
        tools::pki::certificate_authority const authority("Velk Bench CA");
        std::string const password = "bench";
        core::result::stack stack;
        auto value = cryptography::pkcs12::from_byte_array(
            authority.issue_client("BENCH LTDA:12345678000195").to_pkcs12(password), password, stack);
        if (stack.has_failed()) {
            throw std::runtime_error(stack.to_string());
        }
        return value;
    }();
    return bundle;
}

}  // namespace velk::bench
