#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/exportInd.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Export detail of the item.
struct detExport {
    core::optional<std::uint64_t> nDraw;
    core::optional<grupo::exportInd> exportInd;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
