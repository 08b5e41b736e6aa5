#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/icms_proprio.hpp>
#include <velk/erp/fiscal/detail/icms_st.hpp>
#include <velk/erp/fiscal/detail/origem_cst.hpp>
#include <velk/erp/fiscal/grupo_fcp.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS taxed, with ICMS by substitution (group ICMS10).
class VELK_EXPORT grupo_tributacao_icms_10 : public detail::origem_cst<grupo_tributacao_icms_10>,
                                 public detail::icms_proprio<grupo_tributacao_icms_10>,
                                 public detail::icms_st<grupo_tributacao_icms_10> {
public:
    // vBCFCP, pFCP, vFCP
    core::optional<grupo_fcp> get_fcp() const { return fcp_; }
    grupo_tributacao_icms_10& set_fcp(core::optional<grupo_fcp> value)
    {
        fcp_ = std::move(value);
        return *this;
    }

private:
    core::optional<grupo_fcp> fcp_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
