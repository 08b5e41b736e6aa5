#pragma once

#include <velk/core/decimal.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// IPI given back (element IPI of impostoDevol).
struct IPIDevol {
    core::decimal vIPIDevol;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
