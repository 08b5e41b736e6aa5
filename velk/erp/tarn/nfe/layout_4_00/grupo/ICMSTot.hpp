#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Totals of the note that concern goods.
struct ICMSTot {
    core::decimal vBC;
    core::decimal vICMS;
    core::decimal vICMSDeson;
    core::optional<core::decimal> vFCPUFDest;
    core::optional<core::decimal> vICMSUFDest;
    core::optional<core::decimal> vICMSUFRemet;
    core::decimal vFCP;
    core::decimal vBCST;
    core::decimal vST;
    core::decimal vFCPST;
    core::decimal vFCPSTRet;
    core::decimal vProd;
    core::decimal vFrete;
    core::decimal vSeg;
    core::decimal vDesc;
    core::decimal vII;
    core::decimal vIPI;
    core::decimal vIPIDevol;
    core::decimal vPIS;
    core::decimal vCOFINS;
    core::decimal vOutro;
    core::decimal vNF;
    core::optional<core::decimal> vTotTrib;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
