#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Import tax of an item.
struct II {
    core::decimal vBC;
    core::decimal vDespAdu;
    core::decimal vII;
    core::decimal vIOF;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
