#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax situation of IPI (tag CST of IPITrib and IPINT).
enum class cst_ipi : unsigned int {
    cst_00 = 0,   // 00: entry with credit
    cst_01 = 1,   // 01
    cst_02 = 2,   // 02
    cst_03 = 3,   // 03
    cst_04 = 4,   // 04
    cst_05 = 5,   // 05
    cst_49 = 6,   // 49: other entries
    cst_50 = 7,   // 50: exit, taxed
    cst_51 = 8,   // 51
    cst_52 = 9,   // 52
    cst_53 = 10,  // 53
    cst_54 = 11,  // 54
    cst_55 = 12,  // 55
    cst_99 = 13,  // 99: other exits
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
