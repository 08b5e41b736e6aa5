#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_aliquota.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// PIS charged by rate on the value (group PISAliq).
class grupo_tributacao_pis_aliquota {
public:
    // CST
    cst_pis_cofins_aliquota get_cst_pis() const { return cst_pis_; }
    grupo_tributacao_pis_aliquota& set_cst_pis(cst_pis_cofins_aliquota value)
    {
        cst_pis_ = value;
        return *this;
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_pis() const { return valor_bc_pis_; }
    grupo_tributacao_pis_aliquota& set_valor_bc_pis(core::optional<core::decimal> value)
    {
        valor_bc_pis_ = std::move(value);
        return *this;
    }

    // pPIS
    core::optional<core::decimal> get_percentual_aliquota_pis() const { return percentual_aliquota_pis_; }
    grupo_tributacao_pis_aliquota& set_percentual_aliquota_pis(core::optional<core::decimal> value)
    {
        percentual_aliquota_pis_ = std::move(value);
        return *this;
    }

    // vPIS
    core::decimal get_valor_pis() const { return valor_pis_; }
    grupo_tributacao_pis_aliquota& set_valor_pis(core::decimal value)
    {
        valor_pis_ = std::move(value);
        return *this;
    }

private:
    cst_pis_cofins_aliquota cst_pis_{};
    core::optional<core::decimal> valor_bc_pis_;
    core::optional<core::decimal> percentual_aliquota_pis_;
    core::decimal valor_pis_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
