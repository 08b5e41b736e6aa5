#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCP.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCPST.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSDeson.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS in other situations: every part optional.
struct ICMS90 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    core::optional<std::uint16_t> modBC;
    core::optional<core::decimal> vBC;
    core::optional<core::decimal> pRedBC;
    core::optional<core::decimal> pICMS;
    core::optional<core::decimal> vICMS;
    core::optional<grupo::FCP> FCP;
    core::optional<std::uint16_t> modBCST;
    core::optional<core::decimal> pMVAST;
    core::optional<core::decimal> pRedBCST;
    core::optional<core::decimal> vBCST;
    core::optional<core::decimal> pICMSST;
    core::optional<core::decimal> vICMSST;
    core::optional<grupo::FCPST> FCPST;
    core::optional<grupo::ICMSDeson> ICMSDeson;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
