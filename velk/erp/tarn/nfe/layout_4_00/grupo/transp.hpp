#pragma once

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Transport of the goods.
// The carrier, vehicles and volumes join it with the closing groups.
struct transp {
    std::uint16_t modFrete = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
