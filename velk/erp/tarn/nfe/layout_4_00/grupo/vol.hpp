#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/lacres.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Volumes carried.
struct vol {
    core::optional<std::uint64_t> qVol;
    core::optional<std::string> esp;
    core::optional<std::string> marca;
    core::optional<std::string> nVol;
    core::optional<core::decimal> pesoL;
    core::optional<core::decimal> pesoB;
    std::vector<grupo::lacres> lacres;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
