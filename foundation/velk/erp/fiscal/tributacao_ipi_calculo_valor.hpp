#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// IPI computed by value per unit.
class VELK_EXPORT tributacao_ipi_calculo_valor {
public:
    // vUnid
    core::optional<core::decimal> get_valor_unidade_tributavel() const { return valor_unidade_tributavel_; }
    tributacao_ipi_calculo_valor& set_valor_unidade_tributavel(core::optional<core::decimal> value)
    {
        valor_unidade_tributavel_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> valor_unidade_tributavel_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
