#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/detail/valores_fcp.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Fund against poverty (FCP) charged with ICMS.
class VELK_EXPORT grupo_fcp : public detail::valores_fcp<grupo_fcp> {};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
