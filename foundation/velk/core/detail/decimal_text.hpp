#pragma once

// The two ways a decimal is written to a fixed number of places, kept apart
// so that the short one can be checked against the general one.

#include <string>
#include <string_view>

namespace velk::core {
inline namespace v3 {
namespace detail {

// Room for the longest short text: 19 places, the separator, 20 digits of
// integral part and the sign.
using short_decimal_buffer = char[48];

// The text of unscaled * 10^exponent with exactly `decimals` places, rounded
// half away from zero, when it is computed in one 64-bit integer: at most 19
// places asked, an exponent not above zero and at most 19 places cut. It is
// written into the end of `buffer`; empty for any other value.
std::string_view short_decimal_text(long long unscaled, short exponent, unsigned int decimals, char separator,
                                    short_decimal_buffer& buffer);

// The same for every value, digit by digit in a string.
std::string general_decimal_text(long long unscaled, short exponent, unsigned int decimals, char separator);

}  // namespace detail
}  // namespace v3
}  // namespace velk::core
