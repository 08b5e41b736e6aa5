#pragma once

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A referenced fiscal receipt.
struct refECF {
    std::string mod;
    std::uint16_t nECF = 0;
    std::uint32_t nCOO = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
