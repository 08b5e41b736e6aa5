#pragma once

#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSTot.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Totals of the note.
// The totals of services (ISSQNtot) and of withheld taxes (retTrib) join it with the closing groups.
struct total {
    grupo::ICMSTot ICMSTot;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
