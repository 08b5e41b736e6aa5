#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/icms_st.hpp>
#include <velk/erp/fiscal/detail/origem_csosn.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional without credit, with substitution (group ICMSSN202).
class VELK_EXPORT grupo_tributacao_icms_202 : public detail::origem_csosn<grupo_tributacao_icms_202>,
                                  public detail::icms_st<grupo_tributacao_icms_202> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
