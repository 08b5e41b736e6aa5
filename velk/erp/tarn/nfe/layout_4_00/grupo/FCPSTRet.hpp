#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Fund against poverty retained before by substitution, written among the tags of its group.
struct FCPSTRet {
    core::decimal vBCFCPSTRet;
    core::decimal pFCPSTRet;
    core::decimal vFCPSTRet;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
