#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/arma.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/comb.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/med.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/nRECOPI.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/veicProd.hpp>

#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The group of an item of a special kind: a vehicle, medicines, firearms, a fuel or immune paper.
using tipo_produto =
    core::variant<grupo::veicProd, std::vector<grupo::med>, std::vector<grupo::arma>, grupo::comb, grupo::nRECOPI>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
