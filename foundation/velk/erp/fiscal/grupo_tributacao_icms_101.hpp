#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/credito_simples_nacional.hpp>
#include <velk/erp/fiscal/detail/origem_csosn.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional, taxed with credit allowed (group ICMSSN101).
class VELK_EXPORT grupo_tributacao_icms_101 : public detail::origem_csosn<grupo_tributacao_icms_101>,
                                  public detail::credito_simples_nacional<grupo_tributacao_icms_101> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
