#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/icms_retido_anteriormente.hpp>
#include <velk/erp/fiscal/detail/origem_cst.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS charged before by substitution (group ICMS60).
class VELK_EXPORT grupo_tributacao_icms_60 : public detail::origem_cst<grupo_tributacao_icms_60>,
                                 public detail::icms_retido_anteriormente<grupo_tributacao_icms_60> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
