#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Indirect export of the item.
struct exportInd {
    core::optional<std::uint64_t> nRE;
    core::optional<std::string> chNFe;
    core::optional<core::decimal> qExport;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
