#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// Which server a note is issued through. Only written (for failure reports
// of applications that choose their own web servers).
enum class servidor_emissao : int {
    normal = 0,
    contingencia_rs = 1,
    contingencia_an = 2,
    ambiente_nacional = 3,
};

}  // namespace velk::erp::inline v4::tarn::nfe

namespace velk::core {
inline namespace v3 {

// Asks for 18 bytes of room for every value.
template <>
struct VELK_EXPORT chars_converter<erp::tarn::nfe::servidor_emissao> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::nfe::servidor_emissao value);
};

}  // namespace v3
}  // namespace velk::core
