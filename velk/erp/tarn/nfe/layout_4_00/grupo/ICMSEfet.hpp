#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Effective ICMS of a sale to the final consumer, written among the tags of its group.
struct ICMSEfet {
    core::decimal pRedBCEfet;
    core::decimal vBCEfet;
    core::decimal pICMSEfet;
    core::decimal vICMSEfet;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
