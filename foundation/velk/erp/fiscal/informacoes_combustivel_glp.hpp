#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Shares of a liquefied gas blend.
class VELK_EXPORT informacoes_combustivel_glp {
public:
    // pGLP
    core::optional<core::decimal> get_percentual_derivado_do_petroleo() const
    {
        return percentual_derivado_do_petroleo_;
    }
    informacoes_combustivel_glp& set_percentual_derivado_do_petroleo(core::optional<core::decimal> value)
    {
        percentual_derivado_do_petroleo_ = std::move(value);
        return *this;
    }

    // pGNn
    core::optional<core::decimal> get_percentual_gas_natural_nacional() const
    {
        return percentual_gas_natural_nacional_;
    }
    informacoes_combustivel_glp& set_percentual_gas_natural_nacional(core::optional<core::decimal> value)
    {
        percentual_gas_natural_nacional_ = std::move(value);
        return *this;
    }

    // pGNi
    core::optional<core::decimal> get_percentual_gas_natural_importado() const
    {
        return percentual_gas_natural_importado_;
    }
    informacoes_combustivel_glp& set_percentual_gas_natural_importado(core::optional<core::decimal> value)
    {
        percentual_gas_natural_importado_ = std::move(value);
        return *this;
    }

    // vPart
    core::optional<core::decimal> get_valor_partida() const { return valor_partida_; }
    informacoes_combustivel_glp& set_valor_partida(core::optional<core::decimal> value)
    {
        valor_partida_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> percentual_derivado_do_petroleo_;
    core::optional<core::decimal> percentual_gas_natural_nacional_;
    core::optional<core::decimal> percentual_gas_natural_importado_;
    core::optional<core::decimal> valor_partida_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
