#include <velk/erp/tarn/nfe/detail/tipo_evento.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

char const* const texts[] = {"110111", "110112", "110110", "110140", "210200", "210210", "210220", "210240"};
constexpr erp::tarn::detail::enum_text_entry readable[] = {{"110111", 0}, {"110112", 1}, {"110110", 2},
                                                           {"110140", 3}, {"210200", 4}, {"210210", 5},
                                                           {"210220", 6}, {"210240", 7}};

}  // namespace

converter_status chars_converter<erp::tarn::nfe::detail::tipo_evento>::make_chars(
    char* buffer, unsigned long& size, erp::tarn::nfe::detail::tipo_evento value)
{
    return erp::tarn::detail::write_enum_text(buffer, size, static_cast<int>(value), texts, 6,
                                              erp::tarn::detail::check_order::room_first);
}

converter_status value_converter<erp::tarn::nfe::detail::tipo_evento>::make_value(
    erp::tarn::nfe::detail::tipo_evento& value, char const* text, unsigned long size)
{
    return erp::tarn::detail::read_enum_text(value, text, size, readable);
}

}  // namespace v3
}  // namespace velk::core
