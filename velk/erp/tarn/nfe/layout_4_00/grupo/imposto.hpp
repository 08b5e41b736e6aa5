#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Taxes of an item.
// Until the tax groups come, it holds only the approximate total of taxes; the ICMS, ISSQN, IPI, II, PIS,
// COFINS and ICMSUFDest groups join it with their builder.
struct imposto {
    core::optional<core::decimal> vTotTrib;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
