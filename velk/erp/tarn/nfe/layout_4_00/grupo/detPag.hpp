#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// One payment.
// indPag, xPag and card join it with the closing groups.
struct detPag {
    std::uint16_t tPag = 0;
    core::decimal vPag;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
