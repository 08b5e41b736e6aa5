#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSTot.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ISSQNtot.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/retTrib.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Totals of the note.
struct total {
    grupo::ICMSTot ICMSTot;
    core::optional<grupo::ISSQNtot> ISSQNtot;
    core::optional<grupo::retTrib> retTrib;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
