#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS shared with the state of destination, for a sale to a non-taxpayer in another state (group ICMSUFDest).
class VELK_EXPORT tributacao_icms_uf_destino {
public:
    // vBCUFDest
    core::decimal get_valor_bc() const { return valor_bc_; }
    tributacao_icms_uf_destino& set_valor_bc(core::decimal value)
    {
        valor_bc_ = std::move(value);
        return *this;
    }

    // vBCFCPUFDest
    core::optional<core::decimal> get_valor_bc_fcp() const { return valor_bc_fcp_; }
    tributacao_icms_uf_destino& set_valor_bc_fcp(core::optional<core::decimal> value)
    {
        valor_bc_fcp_ = std::move(value);
        return *this;
    }

    // pFCPUFDest
    core::optional<core::decimal> get_percentual_fundo_combate_pobreza() const
    {
        return percentual_fundo_combate_pobreza_;
    }
    tributacao_icms_uf_destino& set_percentual_fundo_combate_pobreza(core::optional<core::decimal> value)
    {
        percentual_fundo_combate_pobreza_ = std::move(value);
        return *this;
    }

    // pICMSUFDest
    core::decimal get_aliquota_interna() const { return aliquota_interna_; }
    tributacao_icms_uf_destino& set_aliquota_interna(core::decimal value)
    {
        aliquota_interna_ = std::move(value);
        return *this;
    }

    // pICMSInter
    core::decimal get_aliquota_interestadual() const { return aliquota_interestadual_; }
    tributacao_icms_uf_destino& set_aliquota_interestadual(core::decimal value)
    {
        aliquota_interestadual_ = std::move(value);
        return *this;
    }

    // pICMSInterPart
    core::decimal get_percentual_partilha() const { return percentual_partilha_; }
    tributacao_icms_uf_destino& set_percentual_partilha(core::decimal value)
    {
        percentual_partilha_ = std::move(value);
        return *this;
    }

    // vFCPUFDest
    core::optional<core::decimal> get_valor_icms_fundo_combate_pobreza() const
    {
        return valor_icms_fundo_combate_pobreza_;
    }
    tributacao_icms_uf_destino& set_valor_icms_fundo_combate_pobreza(core::optional<core::decimal> value)
    {
        valor_icms_fundo_combate_pobreza_ = std::move(value);
        return *this;
    }

    // vICMSUFDest
    core::decimal get_valor_icms_uf_destino() const { return valor_icms_uf_destino_; }
    tributacao_icms_uf_destino& set_valor_icms_uf_destino(core::decimal value)
    {
        valor_icms_uf_destino_ = std::move(value);
        return *this;
    }

    // vICMSUFRemet
    core::decimal get_valor_icms_uf_remetente() const { return valor_icms_uf_remetente_; }
    tributacao_icms_uf_destino& set_valor_icms_uf_remetente(core::decimal value)
    {
        valor_icms_uf_remetente_ = std::move(value);
        return *this;
    }

private:
    core::decimal valor_bc_;
    core::optional<core::decimal> valor_bc_fcp_;
    core::optional<core::decimal> percentual_fundo_combate_pobreza_;
    core::decimal aliquota_interna_;
    core::decimal aliquota_interestadual_;
    core::decimal percentual_partilha_;
    core::optional<core::decimal> valor_icms_fundo_combate_pobreza_;
    core::decimal valor_icms_uf_destino_;
    core::decimal valor_icms_uf_remetente_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
