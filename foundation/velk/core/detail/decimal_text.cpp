#include <velk/core/detail/decimal_text.hpp>

#include <velk/core/detail/digits.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace velk::core {
inline namespace v3 {
namespace detail {

namespace {

constexpr unsigned int most_short_places = 19;
// Zeros laid under the places: a whole number of words, so that they are
// stored in a few moves.
constexpr std::size_t zero_bed = 24;
static_assert(zero_bed >= most_short_places && zero_bed <= sizeof(short_decimal_buffer));

// 10^0 to 10^19, the divisors of the places a short text cuts.
constexpr auto powers_of_ten = [] {
    std::array<unsigned long long, most_short_places + 1> powers{};
    unsigned long long power = 1;
    for (unsigned long long& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

// Adds one to a string of decimal digits, growing it on a carry out.
void increment(std::string& digits)
{
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it == '9') {
            *it = '0';
        } else {
            ++*it;
            return;
        }
    }
    digits.insert(digits.begin(), '1');
}

}  // namespace

std::string_view short_decimal_text(long long unscaled, short exponent, unsigned int decimals, char separator,
                                    short_decimal_buffer& buffer)
{
    if (exponent > 0 || decimals > most_short_places) {
        return {};
    }
    bool const negative = unscaled < 0;
    unsigned long long magnitude =
        negative ? 0ULL - static_cast<unsigned long long>(unscaled) : static_cast<unsigned long long>(unscaled);
    unsigned int const places = static_cast<unsigned int>(-static_cast<int>(exponent));
    // The value as a whole number of the places asked, with `zeros` of its
    // last places missing when the value has fewer places than asked.
    unsigned int zeros = 0;
    if (places > decimals) {
        unsigned int const cut = places - decimals;
        if (cut > most_short_places) {
            return {};
        }
        // Half away from zero on the magnitude: the first digit cut is 5 or
        // more exactly when what is cut reaches half of the divisor.
        unsigned long long const divisor = powers_of_ten[cut];
        unsigned long long const rest = magnitude % divisor;
        magnitude = magnitude / divisor + (rest >= divisor / 2 ? 1 : 0);
    } else {
        zeros = decimals - places;
    }
    bool const minus = negative && magnitude != 0;
    // The places are laid on zeros, which stand for the missing places and
    // for the leading zeros of the fractional digits.
    char* const end = buffer + sizeof buffer;
    std::memset(end - zero_bed, '0', zero_bed);
    unsigned long long const scale = powers_of_ten[decimals - zeros];
    unsigned long long const integral = magnitude / scale;
    write_digits(magnitude - integral * scale, end - zeros);
    char* at = end - decimals;
    if (decimals > 0) {
        *--at = separator;
    }
    if (integral == 0) {
        *--at = '0';
    } else {
        at = write_digits(integral, at);
    }
    if (minus) {
        *--at = '-';
    }
    return {at, static_cast<std::size_t>(end - at)};
}

std::string general_decimal_text(long long unscaled, short exponent, unsigned int decimals, char separator)
{
    bool const negative = unscaled < 0;
    unsigned long long const magnitude =
        negative ? 0ULL - static_cast<unsigned long long>(unscaled) : static_cast<unsigned long long>(unscaled);
    // Digits of the value with exactly `decimals` places, as one integer string.
    std::string digits = std::to_string(magnitude);
    long long const places = -static_cast<long long>(exponent);  // places the value has
    long long const wanted = decimals;
    if (places <= wanted) {
        // Pad: append zeros for the missing places (also covers exponent > 0).
        digits.append(static_cast<std::size_t>(wanted - places), '0');
    } else {
        // Cut the surplus places, rounding half away from zero.
        long long const cut = places - wanted;
        if (cut > static_cast<long long>(digits.size())) {
            digits = "0";
        } else {
            std::size_t const keep = digits.size() - static_cast<std::size_t>(cut);
            bool const round_up = digits[keep] >= '5';
            digits.resize(keep);
            if (digits.empty()) {
                digits = "0";
            }
            if (round_up) {
                increment(digits);
            }
        }
    }
    // Make room for the integral part's leading zero.
    if (digits.size() <= static_cast<std::size_t>(wanted)) {
        digits.insert(digits.begin(), static_cast<std::size_t>(wanted) + 1 - digits.size(), '0');
    }
    bool const is_zero = std::all_of(digits.begin(), digits.end(), [](char c) { return c == '0'; });
    std::string text;
    text.reserve(digits.size() + 2);
    if (negative && !is_zero) {
        text += '-';
    }
    std::size_t const integral = digits.size() - static_cast<std::size_t>(wanted);
    text.append(digits, 0, integral);
    if (wanted > 0) {
        text += separator;
        text.append(digits, integral, std::string::npos);
    }
    return text;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::core
