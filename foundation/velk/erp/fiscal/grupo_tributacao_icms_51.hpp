#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/icms_proprio.hpp>
#include <velk/erp/fiscal/detail/origem_cst.hpp>
#include <velk/erp/fiscal/grupo_fcp.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS deferred (group ICMS51).
class VELK_EXPORT grupo_tributacao_icms_51 : public detail::origem_cst<grupo_tributacao_icms_51>,
                                 public detail::icms_proprio<grupo_tributacao_icms_51> {
public:
    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    grupo_tributacao_icms_51& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

    // vICMSOp
    core::optional<core::decimal> get_valor_icms_operacao() const { return valor_icms_operacao_; }
    grupo_tributacao_icms_51& set_valor_icms_operacao(core::optional<core::decimal> value)
    {
        valor_icms_operacao_ = std::move(value);
        return *this;
    }

    // pDif
    core::optional<core::decimal> get_percentual_diferimento() const { return percentual_diferimento_; }
    grupo_tributacao_icms_51& set_percentual_diferimento(core::optional<core::decimal> value)
    {
        percentual_diferimento_ = std::move(value);
        return *this;
    }

    // vICMSDif
    core::optional<core::decimal> get_valor_icms_diferido() const { return valor_icms_diferido_; }
    grupo_tributacao_icms_51& set_valor_icms_diferido(core::optional<core::decimal> value)
    {
        valor_icms_diferido_ = std::move(value);
        return *this;
    }

    // vBCFCP, pFCP, vFCP
    core::optional<grupo_fcp> get_fcp() const { return fcp_; }
    grupo_tributacao_icms_51& set_fcp(core::optional<grupo_fcp> value)
    {
        fcp_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> percentual_reducao_bc_icms_;
    core::optional<core::decimal> valor_icms_operacao_;
    core::optional<core::decimal> percentual_diferimento_;
    core::optional<core::decimal> valor_icms_diferido_;
    core::optional<grupo_fcp> fcp_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
