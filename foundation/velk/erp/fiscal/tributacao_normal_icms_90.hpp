#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/icms_proprio.hpp>
#include <velk/erp/fiscal/grupo_fcp.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Own ICMS of a group ICMS90.
class VELK_EXPORT tributacao_normal_icms_90 : public detail::icms_proprio<tributacao_normal_icms_90> {
public:
    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    tributacao_normal_icms_90& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

    // vBCFCP, pFCP, vFCP
    core::optional<grupo_fcp> get_fcp() const { return fcp_; }
    tributacao_normal_icms_90& set_fcp(core::optional<grupo_fcp> value)
    {
        fcp_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> percentual_reducao_bc_icms_;
    core::optional<grupo_fcp> fcp_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
