#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/dup.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/fat.hpp>

#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The bill: invoice and instalments.
struct cobr {
    core::optional<grupo::fat> fat;
    std::vector<grupo::dup> dup;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
