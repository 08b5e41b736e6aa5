#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PISAliq.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PISNT.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PISOutr.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PISQtde.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// PIS of an item: one group of these; the element PIS holds it.
using PIS = core::variant<grupo::PISAliq, grupo::PISQtde, grupo::PISNT, grupo::PISOutr>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
