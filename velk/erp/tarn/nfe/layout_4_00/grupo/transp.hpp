#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/retTransp.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/transporta.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/veicTransp.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/vol.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Transport of the goods.
struct transp {
    std::uint16_t modFrete = 0;
    core::optional<grupo::transporta> transporta;
    core::optional<grupo::retTransp> retTransp;
    core::optional<grupo::veicTransp> veicTransp;
    std::vector<grupo::veicTransp> reboque;
    core::optional<std::string> vagao;
    core::optional<std::string> balsa;
    std::vector<grupo::vol> vol;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
