#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/card.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// One payment.
struct detPag {
    core::optional<std::uint16_t> indPag;
    std::uint16_t tPag = 0;
    core::optional<std::string> xPag;
    core::decimal vPag;
    core::optional<grupo::card> card;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
