#pragma once

// Decimal digits of whole numbers written back from the end of a buffer, two
// at a time, for the writers of numbers in texts.

#include <array>
#include <cstddef>
#include <cstring>

namespace velk::core {
inline namespace v3 {
namespace detail {

// "00" to "99".
inline constexpr std::array<char, 200> digit_pairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t n = 0; n < 100; ++n) {
        pairs[2 * n] = static_cast<char>('0' + n / 10);
        pairs[2 * n + 1] = static_cast<char>('0' + n % 10);
    }
    return pairs;
}();

// The digits of `number` written back from `end`, none for zero; gives where
// they begin.
inline char* write_digits(unsigned long long number, char* end)
{
    while (number >= 100) {
        end -= 2;
        std::memcpy(end, &digit_pairs[2 * (number % 100)], 2);
        number /= 100;
    }
    if (number >= 10) {
        end -= 2;
        std::memcpy(end, &digit_pairs[2 * number], 2);
    } else if (number > 0) {
        *--end = static_cast<char>('0' + number);
    }
    return end;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::core
