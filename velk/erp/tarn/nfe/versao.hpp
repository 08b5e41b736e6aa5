#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// The layout version of a message, as its versao attribute writes it.
enum class versao : int {
    versao_3_10 = 0,  // "3.10"
    versao_4_00 = 1,  // "4.00"
    versao_2_00 = 2,  // "2.00"
};

}  // namespace velk::erp::inline v4::tarn::nfe

namespace velk::core {
inline namespace v3 {

template <>
struct VELK_EXPORT chars_converter<erp::tarn::nfe::versao> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::nfe::versao value);
};

template <>
struct VELK_EXPORT value_converter<erp::tarn::nfe::versao> {
    static converter_status make_value(erp::tarn::nfe::versao& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
