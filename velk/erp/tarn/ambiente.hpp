#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn {

// The environment a message belongs to. Tag tpAmb writes its code: note that
// the codes (2, 1) are not the enumerators' values.
enum class ambiente : int {
    homologacao = 0,  // tpAmb 2: tests with the authority, no fiscal value
    producao = 1,     // tpAmb 1
};

// 2 for homologacao, 1 for producao, 0 for any other value.
VELK_EXPORT int get_codigo_ambiente(ambiente value);

}  // namespace velk::erp::inline v4::tarn

namespace velk::core {
inline namespace v3 {

// "homologação" / "produção" (UTF-8, 13 and 10 bytes); an unknown value fails
// before the room is looked at.
template <>
struct VELK_EXPORT chars_converter<erp::tarn::ambiente> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::ambiente value);
};

// "homologação" or "2", "produção" or "1".
template <>
struct VELK_EXPORT value_converter<erp::tarn::ambiente> {
    static converter_status make_value(erp::tarn::ambiente& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
