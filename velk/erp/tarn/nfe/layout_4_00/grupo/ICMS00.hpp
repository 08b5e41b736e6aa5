#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCP.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS taxed in full.
struct ICMS00 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    std::uint16_t modBC = 0;
    core::decimal vBC;
    core::decimal pICMS;
    core::decimal vICMS;
    core::optional<grupo::FCP> FCP;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
