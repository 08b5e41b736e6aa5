#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How a note was issued. The text of each value is the one digit of tag
// tpEmis (and of position 34 of the access key): note the jump from 7 to 9.
enum class tipo_emissao : int {
    normal = 0,                    // tpEmis 1
    contingencia_fs = 1,           // tpEmis 2: security form
    contingencia_scan = 2,         // tpEmis 3: former SCAN
    contingencia_dpec = 3,         // tpEmis 4: EPEC
    contingencia_fsda = 4,         // tpEmis 5: FS-DA form
    contingencia_svc_an = 5,       // tpEmis 6: SVC-AN
    contingencia_svc_rs = 6,       // tpEmis 7: SVC-RS
    contingencia_offline_nfce = 7, // tpEmis 9: NFC-e offline
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

namespace velk::core {
inline namespace v3 {

template <>
struct VELK_EXPORT chars_converter<erp::fiscal::tipo_emissao> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::fiscal::tipo_emissao value);
};

template <>
struct VELK_EXPORT value_converter<erp::fiscal::tipo_emissao> {
    static converter_status make_value(erp::fiscal::tipo_emissao& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
