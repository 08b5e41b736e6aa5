#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINS_aliquota.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINS_quantidade.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS by substitution; unlike PISST, its value may be absent.
struct COFINSST {
    core::variant<grupo::COFINS_aliquota, grupo::COFINS_quantidade> calculo;
    core::optional<core::decimal> vCOFINS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
