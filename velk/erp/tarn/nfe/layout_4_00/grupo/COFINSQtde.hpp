#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS taxed by the quantity; its base in units has four places.
struct COFINSQtde {
    std::uint16_t CST = 0;
    core::decimal qBCProd;
    core::decimal vAliqProd;
    core::decimal vCOFINS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
