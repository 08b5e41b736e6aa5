#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_icms.hpp>
#include <velk/erp/fiscal/grupo_fcp.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS deferred (group ICMS51).
class grupo_tributacao_icms_51 {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_tributacao_icms_51& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CST
    cst_icms get_cst() const { return cst_; }
    grupo_tributacao_icms_51& set_cst(cst_icms value)
    {
        cst_ = value;
        return *this;
    }

    // modBC
    modalidade_bc_icms get_modalidade_bc_icms() const { return modalidade_bc_icms_; }
    grupo_tributacao_icms_51& set_modalidade_bc_icms(modalidade_bc_icms value)
    {
        modalidade_bc_icms_ = value;
        return *this;
    }

    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    grupo_tributacao_icms_51& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_icms() const { return valor_bc_icms_; }
    grupo_tributacao_icms_51& set_valor_bc_icms(core::optional<core::decimal> value)
    {
        valor_bc_icms_ = std::move(value);
        return *this;
    }

    // pICMS
    core::optional<core::decimal> get_aliquota_icms() const { return aliquota_icms_; }
    grupo_tributacao_icms_51& set_aliquota_icms(core::optional<core::decimal> value)
    {
        aliquota_icms_ = std::move(value);
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

    // vICMS
    core::optional<core::decimal> get_valor_icms() const { return valor_icms_; }
    grupo_tributacao_icms_51& set_valor_icms(core::optional<core::decimal> value)
    {
        valor_icms_ = std::move(value);
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
    origem_mercadoria origem_mercadoria_{};
    cst_icms cst_{};
    modalidade_bc_icms modalidade_bc_icms_{};
    core::optional<core::decimal> percentual_reducao_bc_icms_;
    core::optional<core::decimal> valor_bc_icms_;
    core::optional<core::decimal> aliquota_icms_;
    core::optional<core::decimal> valor_icms_operacao_;
    core::optional<core::decimal> percentual_diferimento_;
    core::optional<core::decimal> valor_icms_diferido_;
    core::optional<core::decimal> valor_icms_;
    core::optional<grupo_fcp> fcp_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
