#include <velk/erp/cpf.hpp>

#include <velk/erp/document_digits.hpp>

namespace velk::erp {
inline namespace v4 {

core::optional<cpf> cpf::from_text(std::string_view text)
{
    std::string digits;
    if (!detail::read_document_digits(text, 11, digits) || !detail::check_digits_match(digits, false)) {
        return {};
    }
    return cpf(std::stoull(digits));
}

bool cpf::check_digits_match(std::uint64_t number)
{
    std::string const digits = detail::zero_filled(number, 11);
    return digits.size() == 11 && detail::check_digits_match(digits, false);
}

std::string cpf::to_string() const
{
    return detail::zero_filled(number_, 11);
}

}  // namespace v4
}  // namespace velk::erp
