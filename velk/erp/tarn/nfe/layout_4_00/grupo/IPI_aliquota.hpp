#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// IPI on a base and a rate.
struct IPI_aliquota {
    core::decimal vBC;
    core::decimal pIPI;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
