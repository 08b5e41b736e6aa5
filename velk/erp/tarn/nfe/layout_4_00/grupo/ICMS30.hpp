#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCPST.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSDeson.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS exempt or not taxed, with ICMS by substitution.
struct ICMS30 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    std::uint16_t modBCST = 0;
    core::optional<core::decimal> pMVAST;
    core::optional<core::decimal> pRedBCST;
    core::decimal vBCST;
    core::decimal pICMSST;
    core::decimal vICMSST;
    core::optional<grupo::FCPST> FCPST;
    core::optional<grupo::ICMSDeson> ICMSDeson;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
