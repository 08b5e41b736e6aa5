#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Sugar cane supplied on one day of the month.
struct forDia {
    std::uint16_t dia = 0;
    core::decimal qtde;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
