#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A batch of the item, for traced goods.
struct rastro {
    std::string nLote;
    core::decimal qLote;
    core::date dFab;
    core::date dVal;
    core::optional<std::string> cAgreg;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
