#pragma once

#include <velk/core/optional.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/IPINT.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/IPITrib.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// IPI of an item.
struct IPI {
    // Layout 3.10 only: the class of the cigarettes and drinks regime.
    core::optional<std::string> clEnq;
    core::optional<std::uint64_t> CNPJProd;
    core::optional<std::string> cSelo;
    core::optional<std::uint64_t> qSelo;
    std::uint16_t cEnq = 0;
    core::variant<grupo::IPITrib, grupo::IPINT> tributacao;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
