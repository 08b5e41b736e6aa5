#pragma once

#include <velk/core/converter_result_category.hpp>
#include <velk/core/converter_status.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/string_view.hpp>

#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>

namespace velk::core {
inline namespace v3 {

// Text forms of values. Specialised per type:
//
//   chars_converter<T>::make_chars(char* buffer, unsigned long& size, T value)
//     writes the text without a terminating zero; size holds the room on entry
//     and the bytes written (or, on buffer_too_small, the room needed) on return.
//   value_converter<T>::make_value(T& value, char const* text, unsigned long size)
//     reads a value from exactly size bytes; on failure the target keeps what
//     it held.
template <class T, class Enable = void>
struct chars_converter;

template <class T, class Enable = void>
struct value_converter;

namespace detail {

template <class T>
inline constexpr bool is_plain_integer_v = std::is_integral_v<T> && !std::is_same_v<T, bool>;

// Longest text an integer target accepts: 16 characters for 16-bit, 32 for
// 32-bit, 64 for 64-bit (and 8 for 8-bit), whatever the digits say.
template <class T>
inline constexpr unsigned long max_text_length_v = sizeof(T) * 8;

}  // namespace detail

// Integers: decimal digits, "-" in front of a negative number.
template <class T>
struct chars_converter<T, std::enable_if_t<detail::is_plain_integer_v<T>>> {
    static converter_status make_chars(char* buffer, unsigned long& size, T value)
    {
        char digits[24];
        unsigned long length = 0;
        bool const negative = std::is_signed_v<T> && value < 0;
        unsigned long long magnitude = negative
                                           ? 0ULL - static_cast<unsigned long long>(static_cast<long long>(value))
                                           : static_cast<unsigned long long>(value);
        do {
            digits[length++] = static_cast<char>('0' + magnitude % 10);
            magnitude /= 10;
        } while (magnitude != 0);
        unsigned long const needed = length + (negative ? 1 : 0);
        if (size < needed) {
            size = needed;
            return converter_status::buffer_too_small;
        }
        unsigned long out = 0;
        if (negative) {
            buffer[out++] = '-';
        }
        while (length > 0) {
            buffer[out++] = digits[--length];
        }
        size = out;
        return converter_status::done;
    }
};

// Integers are read by the rules of the SEFAZ answers: a text longer than the
// target's width in bits is refused, a leading "-" negates, only decimal digits
// otherwise, and an empty text (or "-" alone) reads as 0. Overflow wraps.
template <class T>
struct value_converter<T, std::enable_if_t<detail::is_plain_integer_v<T>>> {
    static converter_status make_value(T& value, char const* text, unsigned long size)
    {
        if (size > detail::max_text_length_v<T>) {
            return converter_status::invalid_value;
        }
        unsigned long position = 0;
        bool negative = false;
        if (size > 0 && text[0] == '-') {
            negative = true;
            position = 1;
        }
        unsigned long long accumulated = 0;
        for (; position < size; ++position) {
            char const c = text[position];
            if (c < '0' || c > '9') {
                return converter_status::invalid_value;
            }
            accumulated = accumulated * 10 + static_cast<unsigned long long>(c - '0');
        }
        if (negative) {
            accumulated = 0ULL - accumulated;
        }
        value = static_cast<T>(accumulated);
        return converter_status::done;
    }
};

// The text recipe: a 64-byte buffer, a larger one when the converter asks for
// it; status 2 or 3 pushes converter_result_category code 1 or 2 on top of the
// stack and gives an empty string.
template <class T>
std::string make_string(T const& value, result::stack& stack)
{
    char local[64];
    unsigned long size = sizeof local;
    converter_status status = chars_converter<T>::make_chars(local, size, value);
    if (status == converter_status::done) {
        return std::string(local, size);
    }
    if (status == converter_status::buffer_too_small) {
        std::unique_ptr<char[]> heap(new char[size]);
        status = chars_converter<T>::make_chars(heap.get(), size, value);
        if (status == converter_status::done) {
            return std::string(heap.get(), size);
        }
    }
    if (status == converter_status::bad_parameter) {
        result::chain<converter_result_category::bad_parameter>(stack);
    } else {
        result::chain<converter_result_category::invalid_value>(stack);
    }
    return std::string();
}

// Reads a value from text. On status 2 or 3 the stack's content is replaced
// by converter_result_category code 1 or 2 and false is returned; the target
// keeps what it held.
template <class T>
bool read_value(T& value, string_view text, result::stack& stack)
{
    converter_status const status = value_converter<T>::make_value(value, text.data(), text.size());
    if (status == converter_status::done) {
        return true;
    }
    if (status == converter_status::bad_parameter) {
        result::fresh<converter_result_category::bad_parameter>(stack);
    } else {
        result::fresh<converter_result_category::invalid_value>(stack);
    }
    return false;
}

}  // namespace v3
}  // namespace velk::core
