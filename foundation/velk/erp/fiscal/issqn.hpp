#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Municipal service tax of a service item (group ISSQN).
class VELK_EXPORT issqn {
public:
    // vBC
    core::decimal get_valor_bc() const { return valor_bc_; }
    issqn& set_valor_bc(core::decimal value)
    {
        valor_bc_ = std::move(value);
        return *this;
    }

    // vAliq
    core::decimal get_valor_aliquota() const { return valor_aliquota_; }
    issqn& set_valor_aliquota(core::decimal value)
    {
        valor_aliquota_ = std::move(value);
        return *this;
    }

    // vISSQN
    core::decimal get_valor_issqn() const { return valor_issqn_; }
    issqn& set_valor_issqn(core::decimal value)
    {
        valor_issqn_ = std::move(value);
        return *this;
    }

    // cMunFG: where the service took place
    std::uint32_t get_codigo_municio_de_ocorrencia() const { return codigo_municio_de_ocorrencia_; }
    issqn& set_codigo_municio_de_ocorrencia(std::uint32_t value)
    {
        codigo_municio_de_ocorrencia_ = value;
        return *this;
    }

    // cListServ
    std::string get_item_lista_servicos() const { return item_lista_servicos_; }
    issqn& set_item_lista_servicos(std::string value)
    {
        item_lista_servicos_ = std::move(value);
        return *this;
    }

    // vDeducao
    core::optional<core::decimal> get_valor_deducao() const { return valor_deducao_; }
    issqn& set_valor_deducao(core::optional<core::decimal> value)
    {
        valor_deducao_ = std::move(value);
        return *this;
    }

    // vOutro
    core::optional<core::decimal> get_valor_outras_retencoes() const { return valor_outras_retencoes_; }
    issqn& set_valor_outras_retencoes(core::optional<core::decimal> value)
    {
        valor_outras_retencoes_ = std::move(value);
        return *this;
    }

    // vDescIncond
    core::optional<core::decimal> get_valor_desconto_incondicionado() const { return valor_desconto_incondicionado_; }
    issqn& set_valor_desconto_incondicionado(core::optional<core::decimal> value)
    {
        valor_desconto_incondicionado_ = std::move(value);
        return *this;
    }

    // vDescCond
    core::optional<core::decimal> get_valor_desconto_condicionado() const { return valor_desconto_condicionado_; }
    issqn& set_valor_desconto_condicionado(core::optional<core::decimal> value)
    {
        valor_desconto_condicionado_ = std::move(value);
        return *this;
    }

    // vISSRet
    core::optional<core::decimal> get_valor_retencao_iss() const { return valor_retencao_iss_; }
    issqn& set_valor_retencao_iss(core::optional<core::decimal> value)
    {
        valor_retencao_iss_ = std::move(value);
        return *this;
    }

    // indISS, the code itself
    std::uint16_t get_indicador_iss() const { return indicador_iss_; }
    issqn& set_indicador_iss(std::uint16_t value)
    {
        indicador_iss_ = value;
        return *this;
    }

    // cServico
    core::optional<std::string> get_codigo_servico() const { return codigo_servico_; }
    issqn& set_codigo_servico(core::optional<std::string> value)
    {
        codigo_servico_ = std::move(value);
        return *this;
    }

    // cMun
    core::optional<std::uint32_t> get_codigo_municipio_incidencia() const { return codigo_municipio_incidencia_; }
    issqn& set_codigo_municipio_incidencia(core::optional<std::uint32_t> value)
    {
        codigo_municipio_incidencia_ = value;
        return *this;
    }

    // cPais
    core::optional<std::uint16_t> get_codigo_pais() const { return codigo_pais_; }
    issqn& set_codigo_pais(core::optional<std::uint16_t> value)
    {
        codigo_pais_ = value;
        return *this;
    }

    // nProcesso
    core::optional<std::string> get_numero_processo() const { return numero_processo_; }
    issqn& set_numero_processo(core::optional<std::string> value)
    {
        numero_processo_ = std::move(value);
        return *this;
    }

    // indIncentivo, the code itself
    std::uint16_t get_indicador_incentivo() const { return indicador_incentivo_; }
    issqn& set_indicador_incentivo(std::uint16_t value)
    {
        indicador_incentivo_ = value;
        return *this;
    }

private:
    core::decimal valor_bc_;
    core::decimal valor_aliquota_;
    core::decimal valor_issqn_;
    std::uint32_t codigo_municio_de_ocorrencia_ = 0;
    std::string item_lista_servicos_;
    core::optional<core::decimal> valor_deducao_;
    core::optional<core::decimal> valor_outras_retencoes_;
    core::optional<core::decimal> valor_desconto_incondicionado_;
    core::optional<core::decimal> valor_desconto_condicionado_;
    core::optional<core::decimal> valor_retencao_iss_;
    std::uint16_t indicador_iss_ = 0;
    core::optional<std::string> codigo_servico_;
    core::optional<std::uint32_t> codigo_municipio_incidencia_;
    core::optional<std::uint16_t> codigo_pais_;
    core::optional<std::string> numero_processo_;
    std::uint16_t indicador_incentivo_ = 0;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
