#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS00.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS10.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS20.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS30.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS40.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS51.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS60.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS70.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS90.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSPart.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSN101.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSN102.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSN201.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSN202.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSN500.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSSN900.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSST.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The ICMS of an item: one group of these, in the order of the layout; the element ICMS holds it.
using ICMS =
    core::variant<grupo::ICMS00, grupo::ICMS10, grupo::ICMS20, grupo::ICMS30, grupo::ICMS40, grupo::ICMS51,
                  grupo::ICMS60, grupo::ICMS70, grupo::ICMS90, grupo::ICMSPart, grupo::ICMSST, grupo::ICMSSN101,
                  grupo::ICMSSN102, grupo::ICMSSN201, grupo::ICMSSN202, grupo::ICMSSN500, grupo::ICMSSN900>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
