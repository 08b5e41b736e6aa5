#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Pump meter readings of a retail fuel sale.
class VELK_EXPORT encerrante_bomba_combustiveis {
public:
    // nBico
    std::uint16_t get_identificacao_bico() const { return identificacao_bico_; }
    encerrante_bomba_combustiveis& set_identificacao_bico(std::uint16_t value)
    {
        identificacao_bico_ = value;
        return *this;
    }

    // nBomba
    core::optional<std::uint16_t> get_identificacao_bomba() const { return identificacao_bomba_; }
    encerrante_bomba_combustiveis& set_identificacao_bomba(core::optional<std::uint16_t> value)
    {
        identificacao_bomba_ = value;
        return *this;
    }

    // nTanque
    std::uint16_t get_identificacao_tanque() const { return identificacao_tanque_; }
    encerrante_bomba_combustiveis& set_identificacao_tanque(std::uint16_t value)
    {
        identificacao_tanque_ = value;
        return *this;
    }

    // vEncIni
    core::decimal get_valor_inicial() const { return valor_inicial_; }
    encerrante_bomba_combustiveis& set_valor_inicial(core::decimal value)
    {
        valor_inicial_ = std::move(value);
        return *this;
    }

    // vEncFin
    core::decimal get_valor_final() const { return valor_final_; }
    encerrante_bomba_combustiveis& set_valor_final(core::decimal value)
    {
        valor_final_ = std::move(value);
        return *this;
    }

private:
    std::uint16_t identificacao_bico_ = 0;
    core::optional<std::uint16_t> identificacao_bomba_;
    std::uint16_t identificacao_tanque_ = 0;
    core::decimal valor_inicial_;
    core::decimal valor_final_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
