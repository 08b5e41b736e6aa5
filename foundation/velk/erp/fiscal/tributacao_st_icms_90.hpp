#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/icms_st.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS by substitution of a group ICMS90.
class VELK_EXPORT tributacao_st_icms_90 : public detail::icms_st<tributacao_st_icms_90> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
