#pragma once

#include <velk/core/decimal.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A deduction from the supply of sugar cane.
struct deduc {
    std::string xDed;
    core::decimal vDed;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
