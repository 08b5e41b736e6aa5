#include <velk/erp/tarn/detail/soap/header_element.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

header_element::header_element(std::string name, std::string prefix, std::string value)
    : element(std::move(name), std::move(prefix)), value(std::move(value))
{
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
