#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax situation of ICMS for the normal regime (tag CST of the ICMS groups).
enum class cst_icms : unsigned int {
    cst_00 = 0,   // 00: taxed in full
    cst_10 = 1,   // 10: taxed, with ICMS by substitution
    cst_20 = 2,   // 20: reduced base
    cst_30 = 3,   // 30: exempt or not taxed, with substitution
    cst_40 = 4,   // 40: exempt
    cst_41 = 5,   // 41: not taxed
    cst_50 = 6,   // 50: suspended
    cst_51 = 7,   // 51: deferred
    cst_60 = 8,   // 60: charged before by substitution
    cst_70 = 9,   // 70: reduced base, with substitution
    cst_90 = 10,  // 90: others
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
