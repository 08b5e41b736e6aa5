#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS taxed on a base and a rate.
struct COFINSAliq {
    std::uint16_t CST = 0;
    core::decimal vBC;
    core::decimal pCOFINS;
    core::decimal vCOFINS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
