#pragma once

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A seal of a volume.
struct lacres {
    std::string nLacre;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
