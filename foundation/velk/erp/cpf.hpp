#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace velk::erp {
inline namespace v4 {

// A person's taxpayer number (11 digits, the last two check digits). Valid by
// construction, as cnpj.
class VELK_EXPORT cpf {
public:
    explicit cpf(std::uint64_t number) : number_(number) {}

    // "12345678909" or "123.456.789-09"; empty when the text is not a CPF with
    // correct check digits.
    static core::optional<cpf> from_text(std::string_view text);
    static bool check_digits_match(std::uint64_t number);

    std::uint64_t to_number() const { return number_; }
    // The 11 digits, zero-filled.
    std::string to_string() const;

    bool operator==(cpf const&) const = default;

private:
    std::uint64_t number_;
};

}  // namespace v4
}  // namespace velk::erp
