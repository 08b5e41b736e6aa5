#include <velk/erp/fiscal/tipo_emissao.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

// The tpEmis digit of each value, indexed by the enumerator.
constexpr char digits[] = {'1', '2', '3', '4', '5', '6', '7', '9'};
constexpr int count = sizeof digits;

}  // namespace

converter_status chars_converter<erp::fiscal::tipo_emissao>::make_chars(char* buffer, unsigned long& size,
                                                                         erp::fiscal::tipo_emissao value)
{
    int const index = static_cast<int>(value);
    if (index < 0 || index >= count) {
        return converter_status::invalid_value;
    }
    if (size < 1) {
        size = 1;
        return converter_status::buffer_too_small;
    }
    buffer[0] = digits[index];
    size = 1;
    return converter_status::done;
}

converter_status value_converter<erp::fiscal::tipo_emissao>::make_value(erp::fiscal::tipo_emissao& value,
                                                                         char const* text, unsigned long size)
{
    if (size != 1) {
        return converter_status::invalid_value;
    }
    for (int index = 0; index < count; ++index) {
        if (digits[index] == text[0]) {
            value = static_cast<erp::fiscal::tipo_emissao>(index);
            return converter_status::done;
        }
    }
    return converter_status::invalid_value;
}

}  // namespace v3
}  // namespace velk::core
