#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Tax on services of an item, in the place of ICMS.
struct ISSQN {
    core::decimal vBC;
    core::decimal vAliq;
    core::decimal vISSQN;
    std::uint32_t cMunFG = 0;
    std::string cListServ;
    core::optional<core::decimal> vDeducao;
    core::optional<core::decimal> vOutro;
    core::optional<core::decimal> vDescIncond;
    core::optional<core::decimal> vDescCond;
    core::optional<core::decimal> vISSRet;
    std::uint16_t indISS = 0;
    core::optional<std::string> cServico;
    core::optional<std::uint32_t> cMun;
    core::optional<std::uint16_t> cPais;
    core::optional<std::string> nProcesso;
    std::uint16_t indIncentivo = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
