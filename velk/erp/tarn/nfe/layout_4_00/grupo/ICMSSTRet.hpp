#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS retained before by substitution, written among the tags of its group.
struct ICMSSTRet {
    core::decimal vBCSTRet;
    core::decimal pST;
    core::optional<core::decimal> vICMSSubstituto;
    core::decimal vICMSSTRet;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
