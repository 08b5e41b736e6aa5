#pragma once

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// An administrative or judicial process that the note refers to.
struct procRef {
    std::string nProc;
    std::uint16_t indProc = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
