#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_aliquota.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// COFINS charged by rate on the value (group COFINSAliq).
class grupo_tributacao_cofins_aliquota {
public:
    // CST
    cst_pis_cofins_aliquota get_cst_cofins() const { return cst_cofins_; }
    grupo_tributacao_cofins_aliquota& set_cst_cofins(cst_pis_cofins_aliquota value)
    {
        cst_cofins_ = value;
        return *this;
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_cofins() const { return valor_bc_cofins_; }
    grupo_tributacao_cofins_aliquota& set_valor_bc_cofins(core::optional<core::decimal> value)
    {
        valor_bc_cofins_ = std::move(value);
        return *this;
    }

    // pCOFINS
    core::optional<core::decimal> get_percentual_aliquota_cofins() const { return percentual_aliquota_cofins_; }
    grupo_tributacao_cofins_aliquota& set_percentual_aliquota_cofins(core::optional<core::decimal> value)
    {
        percentual_aliquota_cofins_ = std::move(value);
        return *this;
    }

    // vCOFINS
    core::decimal get_valor_cofins() const { return valor_cofins_; }
    grupo_tributacao_cofins_aliquota& set_valor_cofins(core::decimal value)
    {
        valor_cofins_ = std::move(value);
        return *this;
    }

private:
    cst_pis_cofins_aliquota cst_cofins_{};
    core::optional<core::decimal> valor_bc_cofins_;
    core::optional<core::decimal> percentual_aliquota_cofins_;
    core::decimal valor_cofins_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
