#pragma once

#include <velk/core/decimal.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/deduc.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/forDia.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Sugar-cane supply of the month.
struct cana {
    std::string safra;
    std::string ref;
    std::vector<grupo::forDia> forDia;
    core::decimal qTotMes;
    core::decimal qTotAnt;
    core::decimal qTotGer;
    std::vector<grupo::deduc> deduc;
    core::decimal vFor;
    core::decimal vTotDed;
    core::decimal vLiqFor;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
