#pragma once

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A referenced CT-e: its 44-digit key.
struct refCTe {
    std::string valor;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
