#include <velk/erp/tarn/detail/soap/body_element.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

body_element::body_element(std::string name, std::string prefix) : element(std::move(name), std::move(prefix)) {}

}  // namespace velk::erp::inline v4::tarn::detail::soap
