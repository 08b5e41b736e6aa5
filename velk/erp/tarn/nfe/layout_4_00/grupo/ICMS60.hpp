#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCPSTRet.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSEfet.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSTRet.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS charged before by substitution.
struct ICMS60 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    core::optional<grupo::ICMSSTRet> ICMSSTRet;
    core::optional<grupo::FCPSTRet> FCPSTRet;
    core::optional<grupo::ICMSEfet> ICMSEfet;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
