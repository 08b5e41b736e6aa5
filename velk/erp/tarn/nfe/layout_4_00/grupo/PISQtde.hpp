#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// PIS taxed by the quantity.
struct PISQtde {
    std::uint16_t CST = 0;
    core::decimal qBCProd;
    core::decimal vAliqProd;
    core::decimal vPIS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
