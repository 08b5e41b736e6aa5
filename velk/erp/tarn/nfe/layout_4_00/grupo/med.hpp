#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A medicine sold in the item.
struct med {
    std::string cProdANVISA;
    core::optional<std::string> xMotivoIsencao;
    core::decimal vPMC;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
