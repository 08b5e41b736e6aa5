#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// PIS by the quantity: base in units and the rate in reais per unit, four places each.
struct PIS_quantidade {
    core::decimal qBCProd;
    core::decimal vAliqProd;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
