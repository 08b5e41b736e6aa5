#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS shared between the state of origin and the state of destination.
struct ICMSPart {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    std::uint16_t modBC = 0;
    core::decimal vBC;
    core::optional<core::decimal> pRedBC;
    core::decimal pICMS;
    core::decimal vICMS;
    std::uint16_t modBCST = 0;
    core::optional<core::decimal> pMVAST;
    core::optional<core::decimal> pRedBCST;
    core::decimal vBCST;
    core::decimal pICMSST;
    core::decimal vICMSST;
    core::decimal pBCOp;
    std::uint16_t UFST = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
