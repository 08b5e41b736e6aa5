#include <velk/erp/cnpj.hpp>

#include <velk/erp/document_digits.hpp>

namespace velk::erp {
inline namespace v4 {

core::optional<cnpj> cnpj::from_text(std::string_view text)
{
    std::string digits;
    if (!detail::read_document_digits(text, 14, digits) || !detail::check_digits_match(digits, true)) {
        return {};
    }
    return cnpj(std::stoull(digits));
}

bool cnpj::check_digits_match(std::uint64_t number)
{
    std::string const digits = detail::zero_filled(number, 14);
    return digits.size() == 14 && detail::check_digits_match(digits, true);
}

std::string cnpj::to_string() const
{
    return detail::zero_filled(number_, 14);
}

}  // namespace v4
}  // namespace velk::erp
