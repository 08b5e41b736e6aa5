#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace velk::erp {
inline namespace v4 {

// A company's registration number (14 digits, the last two check digits).
// A cnpj object is valid by construction: it is made only through from_text,
// which checks the digits, or from a number the caller vouches for.
class VELK_EXPORT cnpj {
public:
    explicit cnpj(std::uint64_t number) : number_(number) {}

    // "12345678000195" or "12.345.678/0001-95"; empty when the text is not a
    // CNPJ with correct check digits.
    static core::optional<cnpj> from_text(std::string_view text);
    // True when the 14 digits of the number carry correct check digits.
    static bool check_digits_match(std::uint64_t number);

    std::uint64_t to_number() const { return number_; }
    // The 14 digits, zero-filled.
    std::string to_string() const;

    bool operator==(cnpj const&) const = default;

private:
    std::uint64_t number_;
};

}  // namespace v4
}  // namespace velk::erp
