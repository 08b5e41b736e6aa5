#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCP.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSDeson.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS on a reduced base.
struct ICMS20 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    std::uint16_t modBC = 0;
    core::decimal pRedBC;
    core::decimal vBC;
    core::decimal pICMS;
    core::decimal vICMS;
    core::optional<grupo::FCP> FCP;
    core::optional<grupo::ICMSDeson> ICMSDeson;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
