#include <velk/erp/tarn/nfe/versao_qrcode.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

#include <cstring>

namespace velk::core {
inline namespace v3 {

namespace {

char const* const texts[] = {"100", "200"};
constexpr erp::tarn::detail::enum_text_entry readable[] = {{"100", 0}, {"200", 1}};

}  // namespace

converter_status chars_converter<erp::tarn::nfe::versao_qrcode>::make_chars(char* buffer, unsigned long& size,
                                                                            erp::tarn::nfe::versao_qrcode value)
{
    // The room asked for is what is written: the digits and the terminator.
    if (size < 4) {
        size = 4;
        return converter_status::buffer_too_small;
    }
    int const index = static_cast<int>(value);
    if (index < 0 || index > 1) {
        return converter_status::invalid_value;
    }
    std::memcpy(buffer, texts[index], 4);
    size = 4;
    return converter_status::done;
}

converter_status value_converter<erp::tarn::nfe::versao_qrcode>::make_value(erp::tarn::nfe::versao_qrcode& value,
                                                                            char const* text, unsigned long size)
{
    return erp::tarn::detail::read_enum_text(value, text, size, readable);
}

}  // namespace v3
}  // namespace velk::core
