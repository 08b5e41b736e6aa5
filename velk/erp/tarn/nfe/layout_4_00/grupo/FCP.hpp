#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Fund against poverty of the item's ICMS. Its tags stand among those of the group that holds it,
// without an element of their own; in ICMS00 the base is left out.
struct FCP {
    core::decimal vBCFCP;
    core::decimal pFCP;
    core::decimal vFCP;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
