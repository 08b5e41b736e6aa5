#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/FCPST.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Simples Nacional with credit allowed and ICMS by substitution.
struct ICMSSN201 {
    std::uint16_t orig = 0;
    std::uint16_t CSOSN = 0;
    std::uint16_t modBCST = 0;
    core::optional<core::decimal> pMVAST;
    core::optional<core::decimal> pRedBCST;
    core::decimal vBCST;
    core::decimal pICMSST;
    core::decimal vICMSST;
    core::optional<grupo::FCPST> FCPST;
    core::decimal pCredSN;
    core::decimal vCredICMSSN;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
