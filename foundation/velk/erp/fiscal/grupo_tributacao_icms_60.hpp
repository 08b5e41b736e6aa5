#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_icms.hpp>
#include <velk/erp/fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <velk/erp/fiscal/grupo_icms_st_retido.hpp>
#include <velk/erp/fiscal/informacoes_icms_efetivo.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS charged before by substitution (group ICMS60).
class grupo_tributacao_icms_60 {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_tributacao_icms_60& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CST
    cst_icms get_cst() const { return cst_; }
    grupo_tributacao_icms_60& set_cst(cst_icms value)
    {
        cst_ = value;
        return *this;
    }

    // vBCSTRet, pST, vICMSSubstituto, vICMSSTRet
    core::optional<grupo_icms_st_retido> get_icms_st_retido() const { return icms_st_retido_; }
    grupo_tributacao_icms_60& set_icms_st_retido(core::optional<grupo_icms_st_retido> value)
    {
        icms_st_retido_ = std::move(value);
        return *this;
    }

    // vBCFCPSTRet, pFCPSTRet, vFCPSTRet
    core::optional<grupo_fcp_st_retido_anteriormente> get_fcp_st_retido_anteriormente() const { return fcp_st_retido_anteriormente_; }
    grupo_tributacao_icms_60& set_fcp_st_retido_anteriormente(core::optional<grupo_fcp_st_retido_anteriormente> value)
    {
        fcp_st_retido_anteriormente_ = std::move(value);
        return *this;
    }

    // pRedBCEfet, vBCEfet, pICMSEfet, vICMSEfet
    core::optional<informacoes_icms_efetivo> get_informacoes_icms_efetivo() const { return informacoes_icms_efetivo_; }
    grupo_tributacao_icms_60& set_informacoes_icms_efetivo(core::optional<informacoes_icms_efetivo> value)
    {
        informacoes_icms_efetivo_ = std::move(value);
        return *this;
    }

private:
    origem_mercadoria origem_mercadoria_{};
    cst_icms cst_{};
    core::optional<grupo_icms_st_retido> icms_st_retido_;
    core::optional<grupo_fcp_st_retido_anteriormente> fcp_st_retido_anteriormente_;
    core::optional<informacoes_icms_efetivo> informacoes_icms_efetivo_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
