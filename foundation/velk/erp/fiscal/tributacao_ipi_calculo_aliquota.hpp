#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// IPI computed by rate on a base.
class VELK_EXPORT tributacao_ipi_calculo_aliquota {
public:
    // vBC
    core::optional<core::decimal> get_valor_bc_ipi() const { return valor_bc_ipi_; }
    tributacao_ipi_calculo_aliquota& set_valor_bc_ipi(core::optional<core::decimal> value)
    {
        valor_bc_ipi_ = std::move(value);
        return *this;
    }

    // pIPI
    core::optional<core::decimal> get_aliquota_ipi() const { return aliquota_ipi_; }
    tributacao_ipi_calculo_aliquota& set_aliquota_ipi(core::optional<core::decimal> value)
    {
        aliquota_ipi_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> valor_bc_ipi_;
    core::optional<core::decimal> aliquota_ipi_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
