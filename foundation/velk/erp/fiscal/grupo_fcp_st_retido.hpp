#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/valores_fcp.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Fund against poverty (FCP) retained by substitution.
class VELK_EXPORT grupo_fcp_st_retido : public detail::valores_fcp<grupo_fcp_st_retido> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
