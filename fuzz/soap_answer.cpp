// fuzz-dictionary: xml
// The bytes of an answer as the transport receives them: the envelope read,
// a fault told, and the one result document taken out.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/detail/soap/extract_result_document.hpp>
#include <velk/erp/tarn/detail/soap/parse_response.hpp>

#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    namespace soap = erp::tarn::detail::soap;
    core::result::stack stack;
    soap::message const answer = soap::parse_response(fuzz::bytes_of(data, size), stack);
    if (stack.has_failed()) {
        VELK_FUZZ_REQUIRE(answer.body.empty());
        return 0;
    }
    std::vector<std::string> const names{"nfeResultMsg", "nfeStatusServicoNFResult", "nfeAutorizacaoLoteResult"};
    xml::document const result = soap::extract_result_document(answer, names, stack);
    fuzz::require_told(result.get_root_element() != nullptr, stack);
    return 0;
}
