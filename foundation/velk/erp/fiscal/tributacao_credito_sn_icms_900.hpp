#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/credito_simples_nacional.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Credit of the Simples Nacional in a group ICMSSN900.
class VELK_EXPORT tributacao_credito_sn_icms_900
    : public detail::credito_simples_nacional<tributacao_credito_sn_icms_900> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
