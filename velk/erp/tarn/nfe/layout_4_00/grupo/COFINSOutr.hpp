#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINS_aliquota.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINS_quantidade.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS in other operations, by rate or by quantity.
struct COFINSOutr {
    std::uint16_t CST = 0;
    core::variant<grupo::COFINS_aliquota, grupo::COFINS_quantidade> calculo;
    core::decimal vCOFINS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
