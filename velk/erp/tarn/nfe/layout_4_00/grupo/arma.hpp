#pragma once

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A firearm sold in the item.
struct arma {
    std::uint16_t tpArma = 0;
    std::string nSerie;
    std::string nCano;
    std::string descr;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
