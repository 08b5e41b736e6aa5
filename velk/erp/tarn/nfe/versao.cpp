#include <velk/erp/tarn/nfe/versao.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

char const* const texts[] = {"3.10", "4.00", "2.00"};
constexpr erp::tarn::detail::enum_text_entry readable[] = {{"3.10", 0}, {"4.00", 1}, {"2.00", 2}};

}  // namespace

converter_status chars_converter<erp::tarn::nfe::versao>::make_chars(char* buffer, unsigned long& size,
                                                                     erp::tarn::nfe::versao value)
{
    return erp::tarn::detail::write_enum_text(buffer, size, static_cast<int>(value), texts, 4,
                                              erp::tarn::detail::check_order::room_first);
}

converter_status value_converter<erp::tarn::nfe::versao>::make_value(erp::tarn::nfe::versao& value, char const* text,
                                                                     unsigned long size)
{
    return erp::tarn::detail::read_enum_text(value, text, size, readable);
}

}  // namespace v3
}  // namespace velk::core
