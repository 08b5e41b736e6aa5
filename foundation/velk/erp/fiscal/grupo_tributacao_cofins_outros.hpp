#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_outras_operacoes.hpp>
#include <velk/erp/fiscal/detail/cofins_sobre_base.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// COFINS in other operations (group COFINSOutr), on a base and a rate.
class VELK_EXPORT grupo_tributacao_cofins_outros
    : public detail::cofins_sobre_base<grupo_tributacao_cofins_outros, cst_pis_cofins_outras_operacoes> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
