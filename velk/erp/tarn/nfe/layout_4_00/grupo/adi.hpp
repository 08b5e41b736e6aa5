#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// One addition of an import declaration.
struct adi {
    std::uint16_t nAdicao = 0;
    std::uint32_t nSeqAdic = 0;
    std::string cFabricante;
    core::optional<core::decimal> vDescDI;
    core::optional<std::uint64_t> nDraw;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
