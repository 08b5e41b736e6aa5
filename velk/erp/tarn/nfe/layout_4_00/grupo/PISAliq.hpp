#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// PIS taxed on a base and a rate.
struct PISAliq {
    std::uint16_t CST = 0;
    core::decimal vBC;
    core::decimal pPIS;
    core::decimal vPIS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
