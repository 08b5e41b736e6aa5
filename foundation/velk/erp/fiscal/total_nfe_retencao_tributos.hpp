#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Federal taxes withheld (group retTrib).
class VELK_EXPORT total_nfe_retencao_tributos {
public:
    // vRetPIS
    core::optional<core::decimal> get_valor_pis_retido() const { return valor_pis_retido_; }
    total_nfe_retencao_tributos& set_valor_pis_retido(core::optional<core::decimal> value)
    {
        valor_pis_retido_ = std::move(value);
        return *this;
    }

    // vRetCOFINS
    core::optional<core::decimal> get_valor_cofins_retido() const { return valor_cofins_retido_; }
    total_nfe_retencao_tributos& set_valor_cofins_retido(core::optional<core::decimal> value)
    {
        valor_cofins_retido_ = std::move(value);
        return *this;
    }

    // vRetCSLL
    core::optional<core::decimal> get_valor_csll_retido() const { return valor_csll_retido_; }
    total_nfe_retencao_tributos& set_valor_csll_retido(core::optional<core::decimal> value)
    {
        valor_csll_retido_ = std::move(value);
        return *this;
    }

    // vBCIRRF
    core::optional<core::decimal> get_valor_base_calculo_irrf() const { return valor_base_calculo_irrf_; }
    total_nfe_retencao_tributos& set_valor_base_calculo_irrf(core::optional<core::decimal> value)
    {
        valor_base_calculo_irrf_ = std::move(value);
        return *this;
    }

    // vIRRF
    core::optional<core::decimal> get_valor_irrf() const { return valor_irrf_; }
    total_nfe_retencao_tributos& set_valor_irrf(core::optional<core::decimal> value)
    {
        valor_irrf_ = std::move(value);
        return *this;
    }

    // vBCRetPrev
    core::optional<core::decimal> get_valor_bc_retencao_previdencia() const { return valor_bc_retencao_previdencia_; }
    total_nfe_retencao_tributos& set_valor_bc_retencao_previdencia(core::optional<core::decimal> value)
    {
        valor_bc_retencao_previdencia_ = std::move(value);
        return *this;
    }

    // vRetPrev
    core::optional<core::decimal> get_valor_retencao_previdencia() const { return valor_retencao_previdencia_; }
    total_nfe_retencao_tributos& set_valor_retencao_previdencia(core::optional<core::decimal> value)
    {
        valor_retencao_previdencia_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> valor_pis_retido_;
    core::optional<core::decimal> valor_cofins_retido_;
    core::optional<core::decimal> valor_csll_retido_;
    core::optional<core::decimal> valor_base_calculo_irrf_;
    core::optional<core::decimal> valor_irrf_;
    core::optional<core::decimal> valor_bc_retencao_previdencia_;
    core::optional<core::decimal> valor_retencao_previdencia_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
