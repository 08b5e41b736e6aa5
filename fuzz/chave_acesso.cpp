// The access key from text, as it comes from the caller, from an answer or
// from a QR code: a key that reads must write back to the same 44 digits.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/chave_acesso.hpp>

#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    std::string const text(reinterpret_cast<char const*>(data), size);
    erp::tarn::chave_acesso chave;
    core::result::stack stack;
    if (!core::read_value(chave, text, stack)) {
        VELK_FUZZ_REQUIRE(stack.has_failed());
        return 0;
    }
    std::string const written = core::make_string(chave, stack);
    VELK_FUZZ_REQUIRE(!stack.has_failed() && written == text);
    return 0;
}
