#include <velk/erp/tarn/detail/enum_text.hpp>

#include <cstring>

namespace velk::erp::inline v4::tarn::detail {

core::converter_status write_enum_text(char* buffer, unsigned long& size, int index,
                                       std::span<char const* const> texts, unsigned long room, check_order order)
{
    bool const known = index >= 0 && static_cast<std::size_t>(index) < texts.size();
    if (order == check_order::value_first && !known) {
        return core::converter_status::invalid_value;
    }
    unsigned long const length = known ? std::strlen(texts[static_cast<std::size_t>(index)]) : 0;
    unsigned long const needed = room != 0 ? room : length;
    if (size < needed) {
        size = needed;
        return core::converter_status::buffer_too_small;
    }
    if (!known) {
        return core::converter_status::invalid_value;
    }
    std::memcpy(buffer, texts[static_cast<std::size_t>(index)], length);
    size = length;
    return core::converter_status::done;
}

bool find_enum_text(char const* text, unsigned long size, std::span<enum_text_entry const> entries, int& value)
{
    std::string_view const wanted(text, size);
    for (auto const& entry : entries) {
        if (entry.text == wanted) {
            value = entry.value;
            return true;
        }
    }
    return false;
}

}  // namespace velk::erp::inline v4::tarn::detail
