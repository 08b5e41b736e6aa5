#pragma once

#include <velk/core/export.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace velk::erp {
inline namespace v4 {
namespace detail {

// The digits of a CPF or CNPJ text: digits kept, the punctuation ". / -"
// dropped; false on any other character or a count other than `length`.
VELK_EXPORT bool read_document_digits(std::string_view text, std::size_t length, std::string& digits);

// The two modulo-11 check digits of a CPF or CNPJ, computed over the leading
// digits with the weights of each document.
VELK_EXPORT bool check_digits_match(std::string const& digits, bool is_cnpj);

VELK_EXPORT std::string zero_filled(std::uint64_t number, std::size_t length);

}  // namespace detail
}  // namespace v4
}  // namespace velk::erp
