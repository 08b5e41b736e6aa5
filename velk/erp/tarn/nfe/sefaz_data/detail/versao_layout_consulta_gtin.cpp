#include <velk/erp/tarn/nfe/sefaz_data/detail/versao_layout_consulta_gtin.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

using erp::tarn::nfe::sefaz_data::detail::versao_layout_consulta_gtin;

char const* const texts[] = {"1.00"};
constexpr erp::tarn::detail::enum_text_entry readable[] = {{"1.00", 0}};

}  // namespace

converter_status chars_converter<versao_layout_consulta_gtin>::make_chars(char* buffer, unsigned long& size,
                                                                          versao_layout_consulta_gtin value)
{
    return erp::tarn::detail::write_enum_text(buffer, size, static_cast<int>(value), texts, 4,
                                              erp::tarn::detail::check_order::value_first);
}

converter_status value_converter<versao_layout_consulta_gtin>::make_value(versao_layout_consulta_gtin& value,
                                                                          char const* text, unsigned long size)
{
    return erp::tarn::detail::read_enum_text(value, text, size, readable);
}

}  // namespace v3
}  // namespace velk::core
