#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_aliquota.hpp>
#include <velk/erp/fiscal/detail/cofins_sobre_base.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// COFINS charged by rate on the value (group COFINSAliq).
class VELK_EXPORT grupo_tributacao_cofins_aliquota
    : public detail::cofins_sobre_base<grupo_tributacao_cofins_aliquota, cst_pis_cofins_aliquota> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
