#pragma once

namespace velk::core {
inline namespace v3 {

// What chars_converter<T>::make_chars and value_converter<T>::make_value answer.
enum class converter_status : int {
    done = 0,              // the conversion went through
    buffer_too_small = 1,  // make_chars only: size now holds the room needed
    bad_parameter = 2,     // a conversion parameter is wrong
    invalid_value = 3,     // the value has no text form, or the text no value
};

}  // namespace v3
}  // namespace velk::core
