#pragma once

#include <velk/core/converter_status.hpp>

#include <cstddef>
#include <span>
#include <string_view>

namespace velk::erp::inline v4::tarn::detail {

// Text forms of the small enumerations, as tables. Each enumeration checks its
// room and its value in an order of its own, and the room it asks for is not
// always the length of the text: both are part of each converter's contract.
enum class check_order {
    value_first,  // an unknown value fails whatever the room
    room_first,   // too little room answers buffer_too_small even for an unknown value
};

// Writes texts[index]. `room` is what the converter asks for; 0 means the
// text's own length.
core::converter_status write_enum_text(char* buffer, unsigned long& size, int index,
                                       std::span<char const* const> texts, unsigned long room, check_order order);

struct enum_text_entry {
    std::string_view text;
    int value;
};

// The value of the entry whose text equals the bytes exactly; false when none.
bool find_enum_text(char const* text, unsigned long size, std::span<enum_text_entry const> entries, int& value);

// make_value of a table: the value of the matching entry, or invalid_value
// with the target unchanged.
template <class Enumeration>
core::converter_status read_enum_text(Enumeration& value, char const* text, unsigned long size,
                                      std::span<enum_text_entry const> entries)
{
    int found = 0;
    if (!find_enum_text(text, size, entries, found)) {
        return core::converter_status::invalid_value;
    }
    value = static_cast<Enumeration>(found);
    return core::converter_status::done;
}

}  // namespace velk::erp::inline v4::tarn::detail
