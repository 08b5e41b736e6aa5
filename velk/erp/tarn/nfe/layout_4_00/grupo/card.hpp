#pragma once

#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A card payment.
struct card {
    std::uint8_t tpIntegra = 0;
    core::optional<std::string> CNPJ;
    core::optional<std::uint8_t> tBand;
    core::optional<std::string> cAut;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
