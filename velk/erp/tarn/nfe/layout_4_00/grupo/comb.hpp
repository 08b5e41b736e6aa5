#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/CIDE.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/encerrante.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A fuel sold in the item.
struct comb {
    std::uint32_t cProdANP = 0;
    // Layout 3.10 only: the share of natural gas in a GLP mix.
    core::optional<core::decimal> pMixGN;
    std::string descANP;
    core::optional<core::decimal> pGLP;
    core::optional<core::decimal> pGNn;
    core::optional<core::decimal> pGNi;
    core::optional<core::decimal> vPart;
    core::optional<std::string> CODIF;
    core::optional<core::decimal> qTemp;
    std::string UFCons;
    core::optional<grupo::CIDE> CIDE;
    core::optional<grupo::encerrante> encerrante;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
