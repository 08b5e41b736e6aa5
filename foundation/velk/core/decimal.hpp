#pragma once

#include <velk/core/export.hpp>
#include <velk/core/string_view.hpp>

#include <string>

namespace velk::core {
inline namespace v3 {

// An exact decimal number: unscaled times ten to the power exponent. A value
// with n decimal places has exponent -n; 12.50 is decimal(1250, -2).
//
// to_string(places, separator) writes exactly `places` digits after the
// separator. Rounding rule: when the value has more places than asked, it is
// rounded half away from zero (2.345 -> "2.35", -2.345 -> "-2.35"); with
// fewer places it is padded with zeros. A zero result is never written with a
// minus sign.
class VELK_EXPORT decimal {
public:
    decimal() = default;
    decimal(long long unscaled, short exponent);

    long long get_unscaled() const { return unscaled_; }
    short get_exponent() const { return exponent_; }

    // Exact sum; both operands are brought to the smaller exponent.
    decimal operator+(decimal const& other) const;
    // Equal in value: decimal(150, -2) == decimal(15, -1).
    bool operator==(decimal const& other) const;

    std::string to_string(unsigned int decimals, char separator) const;

    // Reads "123", "-0.05", "12.500"; false for anything else (no exponent
    // notation, no grouping). For building values from text in applications
    // and tests.
    static bool parse(string_view text, decimal& value);

private:
    long long unscaled_ = 0;
    short exponent_ = 0;
};

}  // namespace v3
}  // namespace velk::core
