#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS of the state of destination on a sale to a consumer there who pays no ICMS.
struct ICMSUFDest {
    core::decimal vBCUFDest;
    core::optional<core::decimal> vBCFCPUFDest;
    core::optional<core::decimal> pFCPUFDest;
    core::decimal pICMSUFDest;
    core::decimal pICMSInter;
    core::decimal pICMSInterPart;
    core::optional<core::decimal> vFCPUFDest;
    core::decimal vICMSUFDest;
    core::decimal vICMSUFRemet;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
