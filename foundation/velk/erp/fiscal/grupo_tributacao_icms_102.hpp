#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/origem_csosn.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional without credit: CSOSN 102, 103, 300 or 400 (group ICMSSN102).
class VELK_EXPORT grupo_tributacao_icms_102 : public detail::origem_csosn<grupo_tributacao_icms_102> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
