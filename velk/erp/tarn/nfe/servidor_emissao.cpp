#include <velk/erp/tarn/nfe/servidor_emissao.hpp>

#include <velk/erp/tarn/detail/enum_text.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

char const* const texts[] = {"normal", "contingencia-rs", "contingencia-an", "ambiente nacional"};

}  // namespace

converter_status chars_converter<erp::tarn::nfe::servidor_emissao>::make_chars(char* buffer, unsigned long& size,
                                                                               erp::tarn::nfe::servidor_emissao value)
{
    return erp::tarn::detail::write_enum_text(buffer, size, static_cast<int>(value), texts, 18,
                                              erp::tarn::detail::check_order::room_first);
}

}  // namespace v3
}  // namespace velk::core
