#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax situation of PIS or COFINS charged by rate (tag CST of PISAliq and COFINSAliq).
enum class cst_pis_cofins_aliquota : unsigned int {
    cst_01 = 0,  // 01: basic rate
    cst_02 = 1,  // 02: differentiated rate
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
