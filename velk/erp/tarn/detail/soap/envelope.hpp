#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/soap/message.hpp>

namespace velk::erp::inline v4::tarn::detail::soap {

// The SOAP 1.2 envelope of a request, put together byte by byte: no XML
// declaration, no line breaks, header values unescaped. Only the trees inside
// the body tags go through the XML library; when one of them cannot be saved
// the stack holds the XML library's failure and the result is empty.
core::byte_array write_envelope(message const& request, core::result::stack& result);

// The bytes without a leading XML declaration of the two forms the XML library
// writes (with or without encoding="UTF-8"), and without the blanks, tabs and
// line breaks after it. Bytes without such a declaration come back unchanged.
core::byte_array strip_xml_declaration(core::byte_array const& bytes);

}  // namespace velk::erp::inline v4::tarn::detail::soap
