#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// The format of the NFC-e consumer QR code.
enum class versao_qrcode : int {
    versao_100 = 0,  // 1.00, query-string form
    versao_200 = 1,  // 2.00, pipe-separated form
};

}  // namespace velk::erp::inline v4::tarn::nfe

namespace velk::core {
inline namespace v3 {

// Writes the three digits AND a terminating zero byte, and reports a size of
// 4: the text with its terminator is what callers rely on. It asks for the 4
// bytes it writes.
template <>
struct VELK_EXPORT chars_converter<erp::tarn::nfe::versao_qrcode> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::nfe::versao_qrcode value);
};

template <>
struct VELK_EXPORT value_converter<erp::tarn::nfe::versao_qrcode> {
    static converter_status make_value(erp::tarn::nfe::versao_qrcode& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
