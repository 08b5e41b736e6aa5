#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn::nfe::detail {

// The event types of the SEFAZ event layout; their text is the six-digit code
// of tag tpEvento.
enum class tipo_evento : int {
    cancelamento = 0,                        // 110111
    cancelamento_por_substituicao = 1,       // 110112
    carta_correcao = 2,                      // 110110
    epec = 3,                                // 110140
    confirmacao_operacao = 4,                // 210200
    ciencia_operacao = 5,                    // 210210
    desconhecimento_operacao = 6,            // 210220
    operacao_nao_realizada = 7,              // 210240
};

}  // namespace velk::erp::inline v4::tarn::nfe::detail

namespace velk::core {
inline namespace v3 {

template <>
struct VELK_EXPORT chars_converter<erp::tarn::nfe::detail::tipo_evento> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::nfe::detail::tipo_evento value);
};

template <>
struct VELK_EXPORT value_converter<erp::tarn::nfe::detail::tipo_evento> {
    static converter_status make_value(erp::tarn::nfe::detail::tipo_evento& value, char const* text,
                                       unsigned long size);
};

}  // namespace v3
}  // namespace velk::core
