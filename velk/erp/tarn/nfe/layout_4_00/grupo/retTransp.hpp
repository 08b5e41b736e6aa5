#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS withheld on the transport service.
struct retTransp {
    core::decimal vServ;
    core::decimal vBCRet;
    core::decimal pICMSRet;
    core::decimal vICMSRet;
    std::uint16_t CFOP = 0;
    std::uint32_t cMunFG = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
