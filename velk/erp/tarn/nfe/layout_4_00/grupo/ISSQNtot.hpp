#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Totals of the services of the note.
struct ISSQNtot {
    core::optional<core::decimal> vServ;
    core::optional<core::decimal> vBC;
    core::optional<core::decimal> vISS;
    core::optional<core::decimal> vPIS;
    core::optional<core::decimal> vCOFINS;
    core::date dCompet;
    core::optional<core::decimal> vDeducao;
    core::optional<core::decimal> vOutro;
    core::optional<core::decimal> vDescIncond;
    core::optional<core::decimal> vDescCond;
    core::optional<core::decimal> vISSRet;
    core::optional<std::uint16_t> cRegTrib;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
