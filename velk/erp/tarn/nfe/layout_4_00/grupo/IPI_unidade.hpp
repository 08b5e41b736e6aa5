#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// IPI by the unit: taxable quantity and the value per unit.
struct IPI_unidade {
    core::decimal qUnid;
    core::decimal vUnid;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
