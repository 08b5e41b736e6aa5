#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_icms.hpp>
#include <velk/erp/fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <velk/erp/fiscal/informacoes_icms_efetivo.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS by substitution passed on to the state of destination (group ICMSST).
class VELK_EXPORT grupo_repasse_icms_st {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_repasse_icms_st& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CST
    cst_icms get_tributacao_icms() const { return tributacao_icms_; }
    grupo_repasse_icms_st& set_tributacao_icms(cst_icms value)
    {
        tributacao_icms_ = value;
        return *this;
    }

    // vBCSTRet
    core::decimal get_valor_bc_icms_st_retido() const { return valor_bc_icms_st_retido_; }
    grupo_repasse_icms_st& set_valor_bc_icms_st_retido(core::decimal value)
    {
        valor_bc_icms_st_retido_ = std::move(value);
        return *this;
    }

    // pST
    core::optional<core::decimal> get_aliquota_suportada_consumidor_final() const
    {
        return aliquota_suportada_consumidor_final_;
    }
    grupo_repasse_icms_st& set_aliquota_suportada_consumidor_final(core::optional<core::decimal> value)
    {
        aliquota_suportada_consumidor_final_ = std::move(value);
        return *this;
    }

    // vICMSSubstituto
    core::optional<core::decimal> get_valor_icms_proprio_substituto() const { return valor_icms_proprio_substituto_; }
    grupo_repasse_icms_st& set_valor_icms_proprio_substituto(core::optional<core::decimal> value)
    {
        valor_icms_proprio_substituto_ = std::move(value);
        return *this;
    }

    // vICMSSTRet
    core::decimal get_valor_icms_st_retido() const { return valor_icms_st_retido_; }
    grupo_repasse_icms_st& set_valor_icms_st_retido(core::decimal value)
    {
        valor_icms_st_retido_ = std::move(value);
        return *this;
    }

    // vBCFCPSTRet, pFCPSTRet, vFCPSTRet
    core::optional<grupo_fcp_st_retido_anteriormente> get_fcp_st_retido_anteriormente() const
    {
        return fcp_st_retido_anteriormente_;
    }
    grupo_repasse_icms_st& set_fcp_st_retido_anteriormente(core::optional<grupo_fcp_st_retido_anteriormente> value)
    {
        fcp_st_retido_anteriormente_ = std::move(value);
        return *this;
    }

    // vBCSTDest
    core::decimal get_valor_bc_icms_st_destino() const { return valor_bc_icms_st_destino_; }
    grupo_repasse_icms_st& set_valor_bc_icms_st_destino(core::decimal value)
    {
        valor_bc_icms_st_destino_ = std::move(value);
        return *this;
    }

    // vICMSSTDest
    core::decimal get_valor_icms_st_destino() const { return valor_icms_st_destino_; }
    grupo_repasse_icms_st& set_valor_icms_st_destino(core::decimal value)
    {
        valor_icms_st_destino_ = std::move(value);
        return *this;
    }

    // pRedBCEfet, vBCEfet, pICMSEfet, vICMSEfet
    core::optional<informacoes_icms_efetivo> get_informacoes_icms_efetivo() const { return informacoes_icms_efetivo_; }
    grupo_repasse_icms_st& set_informacoes_icms_efetivo(core::optional<informacoes_icms_efetivo> value)
    {
        informacoes_icms_efetivo_ = std::move(value);
        return *this;
    }

private:
    origem_mercadoria origem_mercadoria_{};
    cst_icms tributacao_icms_{};
    core::decimal valor_bc_icms_st_retido_;
    core::optional<core::decimal> aliquota_suportada_consumidor_final_;
    core::optional<core::decimal> valor_icms_proprio_substituto_;
    core::decimal valor_icms_st_retido_;
    core::optional<grupo_fcp_st_retido_anteriormente> fcp_st_retido_anteriormente_;
    core::decimal valor_bc_icms_st_destino_;
    core::decimal valor_icms_st_destino_;
    core::optional<informacoes_icms_efetivo> informacoes_icms_efetivo_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
