#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCPST.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Simples Nacional, other situations: every part optional.
struct ICMSSN900 {
    std::uint16_t orig = 0;
    std::uint16_t CSOSN = 0;
    core::optional<std::uint16_t> modBC;
    core::optional<core::decimal> vBC;
    core::optional<core::decimal> pRedBC;
    core::optional<core::decimal> pICMS;
    core::optional<core::decimal> vICMS;
    core::optional<std::uint16_t> modBCST;
    core::optional<core::decimal> pMVAST;
    core::optional<core::decimal> pRedBCST;
    core::optional<core::decimal> vBCST;
    core::optional<core::decimal> pICMSST;
    core::optional<core::decimal> vICMSST;
    core::optional<grupo::FCPST> FCPST;
    core::optional<core::decimal> pCredSN;
    core::optional<core::decimal> vCredICMSSN;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
