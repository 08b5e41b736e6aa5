#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Taxes withheld on the note.
struct retTrib {
    core::optional<core::decimal> vRetPIS;
    core::optional<core::decimal> vRetCOFINS;
    core::optional<core::decimal> vRetCSLL;
    core::optional<core::decimal> vBCIRRF;
    core::optional<core::decimal> vIRRF;
    core::optional<core::decimal> vBCRetPrev;
    core::optional<core::decimal> vRetPrev;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
