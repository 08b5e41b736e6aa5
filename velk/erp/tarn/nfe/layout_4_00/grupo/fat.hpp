#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The invoice of a bill.
struct fat {
    core::optional<std::string> nFat;
    core::optional<core::decimal> vOrig;
    core::optional<core::decimal> vDesc;
    core::optional<core::decimal> vLiq;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
