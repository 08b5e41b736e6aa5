#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS by the quantity: the base in units has two places here, the rate four.
struct COFINS_quantidade {
    core::decimal qBCProd;
    core::decimal vAliqProd;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
