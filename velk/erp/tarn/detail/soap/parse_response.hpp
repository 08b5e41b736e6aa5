#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/soap/message.hpp>

namespace velk::erp::inline v4::tarn::detail::soap {

// Reads the answer of a web service into a message whose body holds each child
// of Body (by local name, without prefix) with its child elements; header and
// namespaces stay empty. The answer must be an Envelope of Header and Body
// elements only, Body of elements only, each of those of elements only: any
// other node, a whitespace text between tags included, is refused. Refusals
// are servico_result_category code 16 with a description and the raw answer
// (chained over the XML library's item when the bytes are no XML, fresh
// otherwise); a Fault is code 4 with its texts (see walker_soap_fault). Any
// failure gives an empty message.
message parse_response(core::byte_array const& bytes, core::result::stack& result);

}  // namespace velk::erp::inline v4::tarn::detail::soap
