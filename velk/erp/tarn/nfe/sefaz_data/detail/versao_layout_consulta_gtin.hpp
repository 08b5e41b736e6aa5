#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

// The layout of the GTIN catalogue query, apart from the NF-e layouts: the
// catalogue has had a single version so far.
enum class versao_layout_consulta_gtin : int {
    versao_1_00 = 0,  // "1.00"
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

namespace velk::core {
inline namespace v3 {

// "1.00"; asks for 4 bytes of room, and an unknown value fails whatever the
// room.
template <>
struct VELK_EXPORT chars_converter<erp::tarn::nfe::sefaz_data::detail::versao_layout_consulta_gtin> {
    static converter_status make_chars(char* buffer, unsigned long& size,
                                       erp::tarn::nfe::sefaz_data::detail::versao_layout_consulta_gtin value);
};

// Exactly the 4 characters "1.00".
template <>
struct VELK_EXPORT value_converter<erp::tarn::nfe::sefaz_data::detail::versao_layout_consulta_gtin> {
    static converter_status make_value(erp::tarn::nfe::sefaz_data::detail::versao_layout_consulta_gtin& value,
                                       char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
