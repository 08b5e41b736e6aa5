#include <velk/erp/tarn/modelo.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

namespace velk::erp::inline v4::tarn {

namespace {

constexpr int codigos[] = {55, 65};

}  // namespace

int get_codigo_modelo(modelo value)
{
    int const index = static_cast<int>(value);
    return index >= 0 && index < 2 ? codigos[index] : 0;
}

}  // namespace velk::erp::inline v4::tarn

namespace velk::core {
inline namespace v3 {

namespace {

char const* const texts[] = {"NFe", "NFCe"};
constexpr erp::tarn::detail::enum_text_entry readable[] = {{"55", 0}, {"nfe", 0}, {"65", 1}, {"nfc", 1}};

}  // namespace

converter_status chars_converter<erp::tarn::modelo>::make_chars(char* buffer, unsigned long& size,
                                                                erp::tarn::modelo value)
{
    return erp::tarn::detail::write_enum_text(buffer, size, static_cast<int>(value), texts, 4,
                                              erp::tarn::detail::check_order::room_first);
}

converter_status value_converter<erp::tarn::modelo>::make_value(erp::tarn::modelo& value, char const* text,
                                                                unsigned long size)
{
    return erp::tarn::detail::read_enum_text(value, text, size, readable);
}

}  // namespace v3
}  // namespace velk::core
