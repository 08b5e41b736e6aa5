#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/credito_simples_nacional.hpp>
#include <velk/erp/fiscal/detail/icms_st.hpp>
#include <velk/erp/fiscal/detail/origem_csosn.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional with credit and substitution (group ICMSSN201).
class VELK_EXPORT grupo_tributacao_icms_201 : public detail::origem_csosn<grupo_tributacao_icms_201>,
                                  public detail::icms_st<grupo_tributacao_icms_201>,
                                  public detail::credito_simples_nacional<grupo_tributacao_icms_201> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
