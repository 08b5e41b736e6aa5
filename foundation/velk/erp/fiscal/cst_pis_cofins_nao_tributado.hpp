#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax situation of PIS or COFINS not charged (tag CST of PISNT and COFINSNT).
enum class cst_pis_cofins_nao_tributado : unsigned int {
    cst_04 = 0,  // 04: single-phase, charged before
    cst_05 = 1,  // 05: by substitution
    cst_06 = 2,  // 06: rate zero
    cst_07 = 3,  // 07: exempt
    cst_08 = 4,  // 08: outside the tax
    cst_09 = 5,  // 09: suspended
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
