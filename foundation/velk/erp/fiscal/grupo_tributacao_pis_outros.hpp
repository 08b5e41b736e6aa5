#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_outras_operacoes.hpp>
#include <velk/erp/fiscal/detail/pis_sobre_base.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// PIS in other operations (group PISOutr), on a base and a rate.
class VELK_EXPORT grupo_tributacao_pis_outros
    : public detail::pis_sobre_base<grupo_tributacao_pis_outros, cst_pis_cofins_outras_operacoes> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
