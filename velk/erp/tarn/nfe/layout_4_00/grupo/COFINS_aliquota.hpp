#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS on a base and a rate.
struct COFINS_aliquota {
    core::decimal vBC;
    core::decimal pCOFINS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
