#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/IPI_aliquota.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/IPI_unidade.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// IPI taxed: the tax situation, the calculation (by rate, or by unit) and the value.
struct IPITrib {
    std::uint16_t CST = 0;
    core::variant<grupo::IPI_aliquota, grupo::IPI_unidade> calculo;
    core::decimal vIPI;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
