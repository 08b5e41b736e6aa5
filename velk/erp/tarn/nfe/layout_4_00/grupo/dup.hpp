#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// An instalment of a bill.
struct dup {
    core::optional<std::string> nDup;
    core::optional<core::date> dVenc;
    core::decimal vDup;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
