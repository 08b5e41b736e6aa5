#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Totals of the note that concern services (group ISSQNtot).
class VELK_EXPORT total_nfe_issqn {
public:
    // vServ
    core::optional<core::decimal> get_valor_servico() const { return valor_servico_; }
    total_nfe_issqn& set_valor_servico(core::optional<core::decimal> value)
    {
        valor_servico_ = std::move(value);
        return *this;
    }

    // vBC
    core::optional<core::decimal> get_valor_base_calculo() const { return valor_base_calculo_; }
    total_nfe_issqn& set_valor_base_calculo(core::optional<core::decimal> value)
    {
        valor_base_calculo_ = std::move(value);
        return *this;
    }

    // vISS
    core::optional<core::decimal> get_valor_iss() const { return valor_iss_; }
    total_nfe_issqn& set_valor_iss(core::optional<core::decimal> value)
    {
        valor_iss_ = std::move(value);
        return *this;
    }

    // vPIS
    core::optional<core::decimal> get_valor_pis() const { return valor_pis_; }
    total_nfe_issqn& set_valor_pis(core::optional<core::decimal> value)
    {
        valor_pis_ = std::move(value);
        return *this;
    }

    // vCOFINS
    core::optional<core::decimal> get_valor_cofins() const { return valor_cofins_; }
    total_nfe_issqn& set_valor_cofins(core::optional<core::decimal> value)
    {
        valor_cofins_ = std::move(value);
        return *this;
    }

    // dCompet
    core::date get_data_prestacao_servico() const { return data_prestacao_servico_; }
    total_nfe_issqn& set_data_prestacao_servico(core::date value)
    {
        data_prestacao_servico_ = std::move(value);
        return *this;
    }

    // vDeducao
    core::optional<core::decimal> get_valor_deducao() const { return valor_deducao_; }
    total_nfe_issqn& set_valor_deducao(core::optional<core::decimal> value)
    {
        valor_deducao_ = std::move(value);
        return *this;
    }

    // vOutro
    core::optional<core::decimal> get_valor_outras_retencoes() const { return valor_outras_retencoes_; }
    total_nfe_issqn& set_valor_outras_retencoes(core::optional<core::decimal> value)
    {
        valor_outras_retencoes_ = std::move(value);
        return *this;
    }

    // vDescIncond
    core::optional<core::decimal> get_valor_desconto_incondicionado() const { return valor_desconto_incondicionado_; }
    total_nfe_issqn& set_valor_desconto_incondicionado(core::optional<core::decimal> value)
    {
        valor_desconto_incondicionado_ = std::move(value);
        return *this;
    }

    // vDescCond
    core::optional<core::decimal> get_valor_desconto_condicionado() const { return valor_desconto_condicionado_; }
    total_nfe_issqn& set_valor_desconto_condicionado(core::optional<core::decimal> value)
    {
        valor_desconto_condicionado_ = std::move(value);
        return *this;
    }

    // vISSRet
    core::optional<core::decimal> get_valor_iss_retido() const { return valor_iss_retido_; }
    total_nfe_issqn& set_valor_iss_retido(core::optional<core::decimal> value)
    {
        valor_iss_retido_ = std::move(value);
        return *this;
    }

    // cRegTrib, the code itself
    core::optional<std::uint16_t> get_codigo_regime_tributacao() const { return codigo_regime_tributacao_; }
    total_nfe_issqn& set_codigo_regime_tributacao(core::optional<std::uint16_t> value)
    {
        codigo_regime_tributacao_ = value;
        return *this;
    }

private:
    core::optional<core::decimal> valor_servico_;
    core::optional<core::decimal> valor_base_calculo_;
    core::optional<core::decimal> valor_iss_;
    core::optional<core::decimal> valor_pis_;
    core::optional<core::decimal> valor_cofins_;
    core::date data_prestacao_servico_;
    core::optional<core::decimal> valor_deducao_;
    core::optional<core::decimal> valor_outras_retencoes_;
    core::optional<core::decimal> valor_desconto_incondicionado_;
    core::optional<core::decimal> valor_desconto_condicionado_;
    core::optional<core::decimal> valor_iss_retido_;
    core::optional<std::uint16_t> codigo_regime_tributacao_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
