#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/refCTe.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/refECF.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/refNF.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/refNFP.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/refNFe.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// One referenced document: each entry writes an element NFref with its alternative inside.
using NFref = core::variant<grupo::refNFe, grupo::refNF, grupo::refNFP, grupo::refCTe, grupo::refECF>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
