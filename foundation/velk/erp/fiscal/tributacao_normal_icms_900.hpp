#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/icms_proprio.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Own ICMS of a group ICMSSN900.
class VELK_EXPORT tributacao_normal_icms_900 : public detail::icms_proprio<tributacao_normal_icms_900> {
public:
    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    tributacao_normal_icms_900& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> percentual_reducao_bc_icms_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
