#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS relieved and the reason, written among the tags of its group.
struct ICMSDeson {
    core::decimal vICMSDeson;
    std::uint16_t motDesICMS = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
