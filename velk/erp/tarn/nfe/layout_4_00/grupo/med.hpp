#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/rastro.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A medicine sold in the item.
struct med {
    // Layout 3.10 only: the batch, before everything else (nLote, qLote, dFab,
    // dVal; the later layout keeps it in rastro).
    core::optional<grupo::rastro> lote;
    std::string cProdANVISA;
    core::optional<std::string> xMotivoIsencao;
    core::decimal vPMC;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
