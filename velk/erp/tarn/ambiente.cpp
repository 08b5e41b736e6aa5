#include <velk/erp/tarn/ambiente.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

namespace velk::erp::inline v4::tarn {

namespace {

constexpr int codigos[] = {2, 1};

}  // namespace

int get_codigo_ambiente(ambiente value)
{
    int const index = static_cast<int>(value);
    return index >= 0 && index < 2 ? codigos[index] : 0;
}

}  // namespace velk::erp::inline v4::tarn

namespace velk::core {
inline namespace v3 {

namespace {

char const* const texts[] = {"homologação", "produção"};
constexpr erp::tarn::detail::enum_text_entry readable[] = {
    {"2", 0}, {"homologação", 0}, {"1", 1}, {"produção", 1}};

}  // namespace

converter_status chars_converter<erp::tarn::ambiente>::make_chars(char* buffer, unsigned long& size,
                                                                  erp::tarn::ambiente value)
{
    return erp::tarn::detail::write_enum_text(buffer, size, static_cast<int>(value), texts, 0,
                                              erp::tarn::detail::check_order::value_first);
}

converter_status value_converter<erp::tarn::ambiente>::make_value(erp::tarn::ambiente& value, char const* text,
                                                                  unsigned long size)
{
    return erp::tarn::detail::read_enum_text(value, text, size, readable);
}

}  // namespace v3
}  // namespace velk::core
