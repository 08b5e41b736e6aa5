#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/icms_retido_anteriormente.hpp>
#include <velk/erp/fiscal/detail/origem_csosn.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional, charged before by substitution (group ICMSSN500).
class VELK_EXPORT grupo_tributacao_icms_500 : public detail::origem_csosn<grupo_tributacao_icms_500>,
                                  public detail::icms_retido_anteriormente<grupo_tributacao_icms_500> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
