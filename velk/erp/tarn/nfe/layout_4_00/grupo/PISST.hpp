#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PIS_aliquota.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PIS_quantidade.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// PIS by substitution.
struct PISST {
    core::variant<grupo::PIS_aliquota, grupo::PIS_quantidade> calculo;
    core::decimal vPIS;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
