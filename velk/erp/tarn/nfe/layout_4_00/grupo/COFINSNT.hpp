#pragma once

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS not taxed: only the tax situation.
struct COFINSNT {
    std::uint16_t CST = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
