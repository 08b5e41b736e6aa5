#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_aliquota.hpp>
#include <velk/erp/fiscal/detail/pis_sobre_base.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// PIS charged by rate on the value (group PISAliq).
class VELK_EXPORT grupo_tributacao_pis_aliquota
    : public detail::pis_sobre_base<grupo_tributacao_pis_aliquota, cst_pis_cofins_aliquota> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
