#pragma once

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The marketplace of the sale.
struct infIntermed {
    std::uint64_t CNPJ = 0;
    std::string idCadIntTran;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
