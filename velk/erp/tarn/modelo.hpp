#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn {

// The model of a fiscal document, as tag mod and the access key write it.
enum class modelo : int {
    nfe = 0,   // 55
    nfce = 1,  // 65
};

// 55 for nfe, 65 for nfce, 0 for any other value.
VELK_EXPORT int get_codigo_modelo(modelo value);

}  // namespace velk::erp::inline v4::tarn

namespace velk::core {
inline namespace v3 {

// "NFe" / "NFCe"; asks for 4 bytes of room for every value, also for "NFe".
template <>
struct VELK_EXPORT chars_converter<erp::tarn::modelo> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::modelo value);
};

// "55" or "nfe", "65" or "nfc". The written forms "NFe" and "NFCe" do not read
// back: the reading side takes the codes the layouts use.
template <>
struct VELK_EXPORT value_converter<erp::tarn::modelo> {
    static converter_status make_value(erp::tarn::modelo& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
