#include <velk/core/decimal.hpp>

#include <velk/core/detail/decimal_text.hpp>
#include <velk/core/detail/short_string.hpp>

#include <algorithm>
#include <string_view>

namespace velk::core {
inline namespace v3 {

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
    // Amounts, quantities and rates fit in one 64-bit integer with their
    // places: written in one pass; anything else digit by digit.
    detail::short_decimal_buffer buffer;
    if (std::string_view const text = detail::short_decimal_text(unscaled_, exponent_, decimals, separator, buffer);
        !text.empty()) {
        return detail::short_string(text);
    }
    return detail::general_decimal_text(unscaled_, exponent_, decimals, separator);
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
