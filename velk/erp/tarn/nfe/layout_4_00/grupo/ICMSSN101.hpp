#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Simples Nacional, taxed with credit allowed.
struct ICMSSN101 {
    std::uint16_t orig = 0;
    std::uint16_t CSOSN = 0;
    core::decimal pCredSN;
    core::decimal vCredICMSSN;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
