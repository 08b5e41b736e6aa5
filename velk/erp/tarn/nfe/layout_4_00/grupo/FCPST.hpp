#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Fund against poverty of the ICMS by substitution, written among the tags of its group.
struct FCPST {
    core::decimal vBCFCPST;
    core::decimal pFCPST;
    core::decimal vFCPST;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
