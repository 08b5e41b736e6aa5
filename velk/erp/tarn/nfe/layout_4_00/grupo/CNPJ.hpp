#pragma once

#include <cstdint>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A company's document as a number; written with 14 digits.
struct CNPJ {
    std::uint64_t valor = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo
