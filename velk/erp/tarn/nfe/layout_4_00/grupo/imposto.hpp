#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINS.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/COFINSST.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMS.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSUFDest.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/II.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/IPI.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ISSQN.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PIS.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/PISST.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Taxes of an item: ICMS for goods or ISSQN for a service, then the other taxes.
struct imposto {
    core::optional<core::decimal> vTotTrib;
    core::variant<grupo::ICMS, grupo::ISSQN> ICMS_ou_ISSQN;
    core::optional<grupo::IPI> IPI;
    core::optional<grupo::II> II;
    core::optional<grupo::PIS> PIS;
    core::optional<grupo::PISST> PISST;
    core::optional<grupo::COFINS> COFINS;
    core::optional<grupo::COFINSST> COFINSST;
    core::optional<grupo::ICMSUFDest> ICMSUFDest;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
