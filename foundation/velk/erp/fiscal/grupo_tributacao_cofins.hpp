#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/fiscal/grupo_tributacao_cofins_aliquota.hpp>
#include <velk/erp/fiscal/grupo_tributacao_cofins_nt.hpp>
#include <velk/erp/fiscal/grupo_tributacao_cofins_outros.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The COFINS of an item: by rate, not charged, or other operations.
using grupo_tributacao_cofins =
    core::variant<grupo_tributacao_cofins_aliquota, grupo_tributacao_cofins_nt, grupo_tributacao_cofins_outros>;

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
