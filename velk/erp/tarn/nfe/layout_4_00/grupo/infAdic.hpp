#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/observacao.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/procRef.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Additional information.
struct infAdic {
    core::optional<std::string> infAdFisco;
    core::optional<std::string> infCpl;
    std::vector<grupo::observacao> obsCont;
    std::vector<grupo::observacao> obsFisco;
    std::vector<grupo::procRef> procRef;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
