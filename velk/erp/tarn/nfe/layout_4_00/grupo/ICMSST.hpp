#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCPSTRet.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSEfet.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS by substitution retained before and passed on to the state of destination.
struct ICMSST {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    core::decimal vBCSTRet;
    core::optional<core::decimal> pST;
    core::optional<core::decimal> vICMSSubstituto;
    core::decimal vICMSSTRet;
    core::optional<grupo::FCPSTRet> FCPSTRet;
    core::decimal vBCSTDest;
    core::decimal vICMSSTDest;
    core::optional<grupo::ICMSEfet> ICMSEfet;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
