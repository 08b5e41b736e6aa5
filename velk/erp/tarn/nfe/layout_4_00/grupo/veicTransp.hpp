#pragma once

#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A vehicle of the transport: the tractor (veicTransp) or a trailer (reboque).
struct veicTransp {
    std::string placa;
    std::string UF;
    core::optional<std::string> RNTC;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
