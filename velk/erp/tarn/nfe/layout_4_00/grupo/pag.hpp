#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/detPag.hpp>

#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The payments of the note.
struct pag {
    std::vector<grupo::detPag> detPag;
    core::optional<core::decimal> vTroco;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
