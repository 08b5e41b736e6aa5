#include <velk/erp/tarn/detail/soap/element.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

element::element(std::string name, std::string prefix) : name(std::move(name)), prefix(std::move(prefix)) {}

element::~element() = default;

std::string element::get_qualified_name() const
{
    return prefix.empty() ? name : prefix + ":" + name;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
