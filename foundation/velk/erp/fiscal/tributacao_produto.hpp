#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms.hpp>
#include <velk/erp/fiscal/issqn.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The main tax of an item: ISSQN for a service, or an ICMS group for goods.
using tributacao_produto = core::variant<issqn, grupo_tributacao_icms>;

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
