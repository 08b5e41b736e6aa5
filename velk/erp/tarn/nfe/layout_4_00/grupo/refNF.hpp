#pragma once

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A referenced paper note of model 1 or 2.
struct refNF {
    std::uint16_t cUF = 0;
    std::uint16_t AAMM = 0;
    std::uint64_t CNPJ = 0;
    std::uint16_t mod = 0;
    std::uint16_t serie = 0;
    std::uint32_t nNF = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
