// A taxpayer's certificate file as the caller hands it in, with the password
// of the seeds: refused with a reason, or a certificate and key that can be
// written out again.

#include "fuzz_input.hpp"

#include <velk/cryptography/pkcs12.hpp>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    core::result::stack stack;
    cryptography::pkcs12 const bundle = cryptography::pkcs12::from_byte_array(fuzz::bytes_of(data, size), "velk", stack);
    fuzz::require_told(!bundle.empty(), stack);
    if (bundle.empty()) {
        return 0;
    }
    (void)bundle.get_certificate().to_byte_array(cryptography::encoding::der, stack);
    (void)bundle.get_evp_private_key().to_byte_array(cryptography::encoding::der, stack);
    VELK_FUZZ_REQUIRE(!stack.has_failed());
    return 0;
}
