#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Pump meter readings of a retail fuel sale.
struct encerrante {
    std::uint16_t nBico = 0;
    core::optional<std::uint16_t> nBomba;
    std::uint16_t nTanque = 0;
    core::decimal vEncIni;
    core::decimal vEncFin;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
