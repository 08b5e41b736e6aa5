#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/fiscal/grupo_tributacao_pis_aliquota.hpp>
#include <velk/erp/fiscal/grupo_tributacao_pis_nt.hpp>
#include <velk/erp/fiscal/grupo_tributacao_pis_outros.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The PIS of an item: by rate, not charged, or other operations.
using grupo_tributacao_pis =
    core::variant<grupo_tributacao_pis_aliquota, grupo_tributacao_pis_nt, grupo_tributacao_pis_outros>;

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
