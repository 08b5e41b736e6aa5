#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Totals of the note that concern goods (group ICMSTot).
class VELK_EXPORT total_nfe_icms {
public:
    // vBC
    core::decimal get_total_base_normal() const { return total_base_normal_; }
    total_nfe_icms& set_total_base_normal(core::decimal value)
    {
        total_base_normal_ = std::move(value);
        return *this;
    }

    // vICMS
    core::decimal get_total_icms_normal() const { return total_icms_normal_; }
    total_nfe_icms& set_total_icms_normal(core::decimal value)
    {
        total_icms_normal_ = std::move(value);
        return *this;
    }

    // vICMSDeson
    core::decimal get_total_desonerado() const { return total_desonerado_; }
    total_nfe_icms& set_total_desonerado(core::decimal value)
    {
        total_desonerado_ = std::move(value);
        return *this;
    }

    // vFCPUFDest
    core::optional<core::decimal> get_total_icms_fcp() const { return total_icms_fcp_; }
    total_nfe_icms& set_total_icms_fcp(core::optional<core::decimal> value)
    {
        total_icms_fcp_ = std::move(value);
        return *this;
    }

    // vICMSUFDest
    core::optional<core::decimal> get_total_icms_destino() const { return total_icms_destino_; }
    total_nfe_icms& set_total_icms_destino(core::optional<core::decimal> value)
    {
        total_icms_destino_ = std::move(value);
        return *this;
    }

    // vICMSUFRemet
    core::optional<core::decimal> get_total_icms_remetente() const { return total_icms_remetente_; }
    total_nfe_icms& set_total_icms_remetente(core::optional<core::decimal> value)
    {
        total_icms_remetente_ = std::move(value);
        return *this;
    }

    // vFCP
    core::decimal get_total_fcp() const { return total_fcp_; }
    total_nfe_icms& set_total_fcp(core::decimal value)
    {
        total_fcp_ = std::move(value);
        return *this;
    }

    // vBCST
    core::decimal get_total_base_st() const { return total_base_st_; }
    total_nfe_icms& set_total_base_st(core::decimal value)
    {
        total_base_st_ = std::move(value);
        return *this;
    }

    // vST
    core::decimal get_total_retido() const { return total_retido_; }
    total_nfe_icms& set_total_retido(core::decimal value)
    {
        total_retido_ = std::move(value);
        return *this;
    }

    // vFCPST
    core::decimal get_total_fcp_retido() const { return total_fcp_retido_; }
    total_nfe_icms& set_total_fcp_retido(core::decimal value)
    {
        total_fcp_retido_ = std::move(value);
        return *this;
    }

    // vFCPSTRet
    core::decimal get_total_fcp_retido_anteriormente() const { return total_fcp_retido_anteriormente_; }
    total_nfe_icms& set_total_fcp_retido_anteriormente(core::decimal value)
    {
        total_fcp_retido_anteriormente_ = std::move(value);
        return *this;
    }

    // vProd
    core::decimal get_valor_total_dos_produtos_da_nota() const { return valor_total_dos_produtos_da_nota_; }
    total_nfe_icms& set_valor_total_dos_produtos_da_nota(core::decimal value)
    {
        valor_total_dos_produtos_da_nota_ = std::move(value);
        return *this;
    }

    // vFrete
    core::decimal get_total_frete() const { return total_frete_; }
    total_nfe_icms& set_total_frete(core::decimal value)
    {
        total_frete_ = std::move(value);
        return *this;
    }

    // vSeg
    core::decimal get_total_seguro() const { return total_seguro_; }
    total_nfe_icms& set_total_seguro(core::decimal value)
    {
        total_seguro_ = std::move(value);
        return *this;
    }

    // vDesc
    core::decimal get_valor_total_do_desconto_da_nota() const { return valor_total_do_desconto_da_nota_; }
    total_nfe_icms& set_valor_total_do_desconto_da_nota(core::decimal value)
    {
        valor_total_do_desconto_da_nota_ = std::move(value);
        return *this;
    }

    // vII
    core::decimal get_total_imposto_de_importacao() const { return total_imposto_de_importacao_; }
    total_nfe_icms& set_total_imposto_de_importacao(core::decimal value)
    {
        total_imposto_de_importacao_ = std::move(value);
        return *this;
    }

    // vIPI
    core::decimal get_total_ipi() const { return total_ipi_; }
    total_nfe_icms& set_total_ipi(core::decimal value)
    {
        total_ipi_ = std::move(value);
        return *this;
    }

    // vIPIDevol
    core::decimal get_total_ipi_devolvido() const { return total_ipi_devolvido_; }
    total_nfe_icms& set_total_ipi_devolvido(core::decimal value)
    {
        total_ipi_devolvido_ = std::move(value);
        return *this;
    }

    // vPIS
    core::decimal get_total_imposto_pis() const { return total_imposto_pis_; }
    total_nfe_icms& set_total_imposto_pis(core::decimal value)
    {
        total_imposto_pis_ = std::move(value);
        return *this;
    }

    // vCOFINS
    core::decimal get_total_imposto_confins() const { return total_imposto_confins_; }
    total_nfe_icms& set_total_imposto_confins(core::decimal value)
    {
        total_imposto_confins_ = std::move(value);
        return *this;
    }

    // vOutro
    core::decimal get_total_despesas_acessorias() const { return total_despesas_acessorias_; }
    total_nfe_icms& set_total_despesas_acessorias(core::decimal value)
    {
        total_despesas_acessorias_ = std::move(value);
        return *this;
    }

    // vNF
    core::decimal get_total_da_nota() const { return total_da_nota_; }
    total_nfe_icms& set_total_da_nota(core::decimal value)
    {
        total_da_nota_ = std::move(value);
        return *this;
    }

    // vTotTrib
    core::optional<core::decimal> get_total_dos_tributos_do_item() const { return total_dos_tributos_do_item_; }
    total_nfe_icms& set_total_dos_tributos_do_item(core::optional<core::decimal> value)
    {
        total_dos_tributos_do_item_ = std::move(value);
        return *this;
    }

private:
    core::decimal total_base_normal_;
    core::decimal total_icms_normal_;
    core::decimal total_desonerado_;
    core::optional<core::decimal> total_icms_fcp_;
    core::optional<core::decimal> total_icms_destino_;
    core::optional<core::decimal> total_icms_remetente_;
    core::decimal total_fcp_;
    core::decimal total_base_st_;
    core::decimal total_retido_;
    core::decimal total_fcp_retido_;
    core::decimal total_fcp_retido_anteriormente_;
    core::decimal valor_total_dos_produtos_da_nota_;
    core::decimal total_frete_;
    core::decimal total_seguro_;
    core::decimal valor_total_do_desconto_da_nota_;
    core::decimal total_imposto_de_importacao_;
    core::decimal total_ipi_;
    core::decimal total_ipi_devolvido_;
    core::decimal total_imposto_pis_;
    core::decimal total_imposto_confins_;
    core::decimal total_despesas_acessorias_;
    core::decimal total_da_nota_;
    core::optional<core::decimal> total_dos_tributos_do_item_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
