#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/fiscal/medicamento_isento.hpp>

#include <string>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A medicine's registration code at ANVISA (13 characters), or the reason it
// has none.
using codigo_anvisa = core::variant<std::string, medicamento_isento>;

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
