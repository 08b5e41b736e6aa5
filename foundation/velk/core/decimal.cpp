#include <velk/core/decimal.hpp>

#include <algorithm>
#include <string_view>

namespace velk::core {
inline namespace v3 {

namespace {

// Decimal digits of a magnitude held as a string, most significant first.
std::string digits_of(unsigned long long magnitude)
{
    std::string digits = std::to_string(magnitude);
    return digits;
}

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

// The text of a value that has no more places than asked, the common case of
// amounts written to a fixed number of places, written into `buffer` from the
// last place back: the missing zeros, the value's digits with the separator
// once the places are done, and a zero for an integral part without digits.
// Empty for a value to be rounded, or one too long for the buffer.
std::string_view padded_text(unsigned long long magnitude, bool negative, unsigned int decimals, char separator,
                             short exponent, char (&buffer)[128])
{
    constexpr long long most_places = 40;
    long long const places = -static_cast<long long>(exponent);
    long long const wanted = decimals;
    if (places > wanted || wanted > most_places || wanted - places > most_places) {
        return {};
    }
    char* const end = buffer + sizeof buffer;
    char* at = end;
    long long written = 0;
    auto const put = [&](char digit) {
        if (written == wanted && wanted > 0) {
            *--at = separator;
        }
        *--at = digit;
        ++written;
    };
    for (long long place = places; place < wanted; ++place) {
        put('0');
    }
    unsigned long long rest = magnitude;
    do {
        put(static_cast<char>('0' + rest % 10));
        rest /= 10;
    } while (rest != 0);
    while (written <= wanted) {
        put('0');
    }
    if (negative && magnitude != 0) {
        *--at = '-';
    }
    return {at, static_cast<std::size_t>(end - at)};
}

}  // namespace

decimal::decimal(long long unscaled, short exponent) : unscaled_(unscaled), exponent_(exponent) {}

decimal decimal::operator+(decimal const& other) const
{
    decimal a = *this;
    decimal b = other;
    // Scale the operand with the larger exponent down to the smaller one.
    while (a.exponent_ > b.exponent_) {
        a.unscaled_ *= 10;
        --a.exponent_;
    }
    while (b.exponent_ > a.exponent_) {
        b.unscaled_ *= 10;
        --b.exponent_;
    }
    return decimal(a.unscaled_ + b.unscaled_, a.exponent_);
}

bool decimal::operator==(decimal const& other) const
{
    if (unscaled_ == 0 || other.unscaled_ == 0) {
        return unscaled_ == other.unscaled_;
    }
    decimal a = *this;
    decimal b = other;
    while (a.exponent_ > b.exponent_) {
        a.unscaled_ *= 10;
        --a.exponent_;
    }
    while (b.exponent_ > a.exponent_) {
        b.unscaled_ *= 10;
        --b.exponent_;
    }
    return a.unscaled_ == b.unscaled_;
}

std::string decimal::to_string(unsigned int decimals, char separator) const
{
    bool const negative = unscaled_ < 0;
    unsigned long long const magnitude =
        negative ? 0ULL - static_cast<unsigned long long>(unscaled_) : static_cast<unsigned long long>(unscaled_);
    char buffer[128];
    if (std::string_view const padded = padded_text(magnitude, negative, decimals, separator, exponent_, buffer);
        !padded.empty()) {
        return std::string(padded);
    }

    // Digits of the value with exactly `decimals` places, as one integer string.
    std::string digits = digits_of(magnitude);
    long long const places = -static_cast<long long>(exponent_);  // places the value has
    long long const wanted = decimals;
    if (places <= wanted) {
        // Pad: append zeros for the missing places (also covers exponent > 0).
        digits.append(static_cast<std::size_t>(wanted - places), '0');
    } else {
        // Cut the surplus places, rounding half away from zero.
        long long const cut = places - wanted;
        bool round_up = false;
        if (cut > static_cast<long long>(digits.size())) {
            digits = "0";
        } else {
            std::size_t const keep = digits.size() - static_cast<std::size_t>(cut);
            round_up = digits[keep] >= '5';
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

bool decimal::parse(string_view text, decimal& value)
{
    std::size_t position = 0;
    bool negative = false;
    if (position < text.size() && (text[position] == '-' || text[position] == '+')) {
        negative = text[position] == '-';
        ++position;
    }
    unsigned long long magnitude = 0;
    int digits = 0;
    int places = 0;
    bool seen_point = false;
    for (; position < text.size(); ++position) {
        char const c = text[position];
        if (c == '.' && !seen_point) {
            seen_point = true;
            continue;
        }
        if (c < '0' || c > '9') {
            return false;
        }
        if (digits >= 18) {
            return false;  // beyond what 64 bits hold exactly
        }
        magnitude = magnitude * 10 + static_cast<unsigned long long>(c - '0');
        if (magnitude != 0 || c != '0') {
            ++digits;
        }
        if (seen_point) {
            ++places;
        }
    }
    if (position == 0 || (digits == 0 && magnitude == 0 && text.find_first_of("0123456789") == string_view::npos)) {
        return false;
    }
    long long const unscaled = negative ? -static_cast<long long>(magnitude) : static_cast<long long>(magnitude);
    value = decimal(unscaled, static_cast<short>(-places));
    return true;
}

}  // namespace v3
}  // namespace velk::core
