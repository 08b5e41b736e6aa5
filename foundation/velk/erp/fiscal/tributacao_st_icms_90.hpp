#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/grupo_fcp_st_retido.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms_st.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS by substitution of a group ICMS90.
class tributacao_st_icms_90 {
public:
    // modBCST
    modalidade_bc_icms_st get_modalidade_bc_icms_st() const { return modalidade_bc_icms_st_; }
    tributacao_st_icms_90& set_modalidade_bc_icms_st(modalidade_bc_icms_st value)
    {
        modalidade_bc_icms_st_ = value;
        return *this;
    }

    // pMVAST
    core::optional<core::decimal> get_percentual_margem_valor_adicionado_icms_st() const { return percentual_margem_valor_adicionado_icms_st_; }
    tributacao_st_icms_90& set_percentual_margem_valor_adicionado_icms_st(core::optional<core::decimal> value)
    {
        percentual_margem_valor_adicionado_icms_st_ = std::move(value);
        return *this;
    }

    // pRedBCST
    core::optional<core::decimal> get_percentual_reducao_bc_icms_st() const { return percentual_reducao_bc_icms_st_; }
    tributacao_st_icms_90& set_percentual_reducao_bc_icms_st(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_st_ = std::move(value);
        return *this;
    }

    // vBCST
    core::optional<core::decimal> get_valor_bc_icms_st() const { return valor_bc_icms_st_; }
    tributacao_st_icms_90& set_valor_bc_icms_st(core::optional<core::decimal> value)
    {
        valor_bc_icms_st_ = std::move(value);
        return *this;
    }

    // pICMSST
    core::optional<core::decimal> get_aliquota_icms_st() const { return aliquota_icms_st_; }
    tributacao_st_icms_90& set_aliquota_icms_st(core::optional<core::decimal> value)
    {
        aliquota_icms_st_ = std::move(value);
        return *this;
    }

    // vICMSST
    core::optional<core::decimal> get_valor_icms_st() const { return valor_icms_st_; }
    tributacao_st_icms_90& set_valor_icms_st(core::optional<core::decimal> value)
    {
        valor_icms_st_ = std::move(value);
        return *this;
    }

    // vBCFCPST, pFCPST, vFCPST
    core::optional<grupo_fcp_st_retido> get_fcp_st_retido() const { return fcp_st_retido_; }
    tributacao_st_icms_90& set_fcp_st_retido(core::optional<grupo_fcp_st_retido> value)
    {
        fcp_st_retido_ = std::move(value);
        return *this;
    }

private:
    modalidade_bc_icms_st modalidade_bc_icms_st_{};
    core::optional<core::decimal> percentual_margem_valor_adicionado_icms_st_;
    core::optional<core::decimal> percentual_reducao_bc_icms_st_;
    core::optional<core::decimal> valor_bc_icms_st_;
    core::optional<core::decimal> aliquota_icms_st_;
    core::optional<core::decimal> valor_icms_st_;
    core::optional<grupo_fcp_st_retido> fcp_st_retido_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
