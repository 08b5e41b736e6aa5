#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_icms.hpp>
#include <velk/erp/fiscal/grupo_fcp.hpp>
#include <velk/erp/fiscal/grupo_fcp_st_retido.hpp>
#include <velk/erp/fiscal/grupo_icms_desonerado.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms_st.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS on a reduced base, with substitution (group ICMS70).
class grupo_tributacao_icms_70 {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_tributacao_icms_70& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CST
    cst_icms get_cst() const { return cst_; }
    grupo_tributacao_icms_70& set_cst(cst_icms value)
    {
        cst_ = value;
        return *this;
    }

    // modBC
    modalidade_bc_icms get_modalidade_bc_icms() const { return modalidade_bc_icms_; }
    grupo_tributacao_icms_70& set_modalidade_bc_icms(modalidade_bc_icms value)
    {
        modalidade_bc_icms_ = value;
        return *this;
    }

    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    grupo_tributacao_icms_70& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_icms() const { return valor_bc_icms_; }
    grupo_tributacao_icms_70& set_valor_bc_icms(core::optional<core::decimal> value)
    {
        valor_bc_icms_ = std::move(value);
        return *this;
    }

    // pICMS
    core::optional<core::decimal> get_aliquota_icms() const { return aliquota_icms_; }
    grupo_tributacao_icms_70& set_aliquota_icms(core::optional<core::decimal> value)
    {
        aliquota_icms_ = std::move(value);
        return *this;
    }

    // vICMS
    core::optional<core::decimal> get_valor_icms() const { return valor_icms_; }
    grupo_tributacao_icms_70& set_valor_icms(core::optional<core::decimal> value)
    {
        valor_icms_ = std::move(value);
        return *this;
    }

    // vBCFCP, pFCP, vFCP
    core::optional<grupo_fcp> get_fcp() const { return fcp_; }
    grupo_tributacao_icms_70& set_fcp(core::optional<grupo_fcp> value)
    {
        fcp_ = std::move(value);
        return *this;
    }

    // modBCST
    modalidade_bc_icms_st get_modalidade_bc_icms_st() const { return modalidade_bc_icms_st_; }
    grupo_tributacao_icms_70& set_modalidade_bc_icms_st(modalidade_bc_icms_st value)
    {
        modalidade_bc_icms_st_ = value;
        return *this;
    }

    // pMVAST
    core::optional<core::decimal> get_percentual_margem_valor_adicionado_icms_st() const { return percentual_margem_valor_adicionado_icms_st_; }
    grupo_tributacao_icms_70& set_percentual_margem_valor_adicionado_icms_st(core::optional<core::decimal> value)
    {
        percentual_margem_valor_adicionado_icms_st_ = std::move(value);
        return *this;
    }

    // pRedBCST
    core::optional<core::decimal> get_percentual_reducao_bc_icms_st() const { return percentual_reducao_bc_icms_st_; }
    grupo_tributacao_icms_70& set_percentual_reducao_bc_icms_st(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_st_ = std::move(value);
        return *this;
    }

    // vBCST
    core::optional<core::decimal> get_valor_bc_icms_st() const { return valor_bc_icms_st_; }
    grupo_tributacao_icms_70& set_valor_bc_icms_st(core::optional<core::decimal> value)
    {
        valor_bc_icms_st_ = std::move(value);
        return *this;
    }

    // pICMSST
    core::optional<core::decimal> get_aliquota_icms_st() const { return aliquota_icms_st_; }
    grupo_tributacao_icms_70& set_aliquota_icms_st(core::optional<core::decimal> value)
    {
        aliquota_icms_st_ = std::move(value);
        return *this;
    }

    // vICMSST
    core::optional<core::decimal> get_valor_icms_st() const { return valor_icms_st_; }
    grupo_tributacao_icms_70& set_valor_icms_st(core::optional<core::decimal> value)
    {
        valor_icms_st_ = std::move(value);
        return *this;
    }

    // vBCFCPST, pFCPST, vFCPST
    core::optional<grupo_fcp_st_retido> get_fcp_st_retido() const { return fcp_st_retido_; }
    grupo_tributacao_icms_70& set_fcp_st_retido(core::optional<grupo_fcp_st_retido> value)
    {
        fcp_st_retido_ = std::move(value);
        return *this;
    }

    // vICMSDeson, motDesICMS
    core::optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const { return grupo_icms_desonerado_; }
    grupo_tributacao_icms_70& set_grupo_icms_desonerado(core::optional<grupo_icms_desonerado> value)
    {
        grupo_icms_desonerado_ = std::move(value);
        return *this;
    }

private:
    origem_mercadoria origem_mercadoria_{};
    cst_icms cst_{};
    modalidade_bc_icms modalidade_bc_icms_{};
    core::optional<core::decimal> percentual_reducao_bc_icms_;
    core::optional<core::decimal> valor_bc_icms_;
    core::optional<core::decimal> aliquota_icms_;
    core::optional<core::decimal> valor_icms_;
    core::optional<grupo_fcp> fcp_;
    modalidade_bc_icms_st modalidade_bc_icms_st_{};
    core::optional<core::decimal> percentual_margem_valor_adicionado_icms_st_;
    core::optional<core::decimal> percentual_reducao_bc_icms_st_;
    core::optional<core::decimal> valor_bc_icms_st_;
    core::optional<core::decimal> aliquota_icms_st_;
    core::optional<core::decimal> valor_icms_st_;
    core::optional<grupo_fcp_st_retido> fcp_st_retido_;
    core::optional<grupo_icms_desonerado> grupo_icms_desonerado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
