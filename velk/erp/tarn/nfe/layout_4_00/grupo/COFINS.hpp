#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINSAliq.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINSNT.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINSOutr.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINSQtde.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// COFINS of an item: one group of these; the element COFINS holds it.
using COFINS = core::variant<grupo::COFINSAliq, grupo::COFINSQtde, grupo::COFINSNT, grupo::COFINSOutr>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
