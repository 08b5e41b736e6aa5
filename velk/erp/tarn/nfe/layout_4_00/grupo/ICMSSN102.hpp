#pragma once

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Simples Nacional, taxed without credit, exempt, immune or not taxed.
struct ICMSSN102 {
    std::uint16_t orig = 0;
    std::uint16_t CSOSN = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
