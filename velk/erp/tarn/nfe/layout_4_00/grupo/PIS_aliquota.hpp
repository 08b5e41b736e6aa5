#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// PIS on a base and a rate.
struct PIS_aliquota {
    core::decimal vBC;
    core::decimal pPIS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
