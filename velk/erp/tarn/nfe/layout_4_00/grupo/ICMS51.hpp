#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCP.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS deferred.
struct ICMS51 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    core::optional<std::uint16_t> modBC;
    core::optional<core::decimal> pRedBC;
    core::optional<core::decimal> vBC;
    core::optional<core::decimal> pICMS;
    core::optional<core::decimal> vICMSOp;
    core::optional<core::decimal> pDif;
    core::optional<core::decimal> vICMSDif;
    core::optional<core::decimal> vICMS;
    core::optional<grupo::FCP> FCP;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
