#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/imposto.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/impostoDevol.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/prod.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// One item of the note.
struct det {
    std::uint16_t nItem = 0;
    grupo::prod prod;
    grupo::imposto imposto;
    core::optional<grupo::impostoDevol> impostoDevol;
    core::optional<std::string> infAdProd;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
