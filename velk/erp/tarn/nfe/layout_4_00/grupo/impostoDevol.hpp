#pragma once

#include <velk/core/decimal.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/IPIDevol.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Taxes given back with a return of goods.
struct impostoDevol {
    core::decimal pDevol;
    grupo::IPIDevol IPI;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
