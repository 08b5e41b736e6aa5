#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// CIDE on a fuel.
struct CIDE {
    core::decimal qBCProd;
    core::decimal vAliqProd;
    core::decimal vCIDE;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
