#include <velk/erp/document_digits.hpp>

namespace velk::erp {
inline namespace v4 {
namespace detail {

bool read_document_digits(std::string_view text, std::size_t length, std::string& digits)
{
    digits.clear();
    for (char const c : text) {
        if (c >= '0' && c <= '9') {
            digits += c;
        } else if (c != '.' && c != '/' && c != '-') {
            return false;
        }
    }
    return digits.size() == length;
}

bool check_digits_match(std::string const& digits, bool is_cnpj)
{
    std::size_t const body = digits.size() - 2;
    for (std::size_t round = 0; round < 2; ++round) {
        std::size_t const count = body + round;
        int sum = 0;
        for (std::size_t i = 0; i < count; ++i) {
            // CPF weights run from count+1 down to 2; CNPJ weights cycle 2..9
            // from the rightmost digit.
            int const weight = is_cnpj ? static_cast<int>(2 + (count - 1 - i) % 8) : static_cast<int>(count + 1 - i);
            sum += (digits[i] - '0') * weight;
        }
        int const rest = sum % 11;
        int const expected = rest < 2 ? 0 : 11 - rest;
        if (digits[count] - '0' != expected) {
            return false;
        }
    }
    return true;
}

std::string zero_filled(std::uint64_t number, std::size_t length)
{
    std::string text = std::to_string(number);
    if (text.size() < length) {
        text.insert(text.begin(), length - text.size(), '0');
    }
    return text;
}

}  // namespace detail
}  // namespace v4
}  // namespace velk::erp
