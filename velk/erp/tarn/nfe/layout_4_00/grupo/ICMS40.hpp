#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ICMSDeson.hpp>

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// ICMS exempt, not taxed or suspended.
struct ICMS40 {
    std::uint16_t orig = 0;
    std::uint16_t CST = 0;
    core::optional<grupo::ICMSDeson> ICMSDeson;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
