#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax situation of PIS or COFINS in other operations (tag CST of PISOutr and COFINSOutr).
enum class cst_pis_cofins_outras_operacoes : unsigned int {
    cst_49 = 0,   // 49: other outgoing operations
    cst_50 = 1,   // 50
    cst_51 = 2,   // 51
    cst_52 = 3,   // 52
    cst_53 = 4,   // 53
    cst_54 = 5,   // 54
    cst_55 = 6,   // 55
    cst_56 = 7,   // 56
    cst_60 = 8,   // 60
    cst_61 = 9,   // 61
    cst_62 = 10,  // 62
    cst_63 = 11,  // 63
    cst_64 = 12,  // 64
    cst_65 = 13,  // 65
    cst_66 = 14,  // 66
    cst_67 = 15,  // 67
    cst_70 = 16,  // 70
    cst_71 = 17,  // 71
    cst_72 = 18,  // 72
    cst_73 = 19,  // 73
    cst_74 = 20,  // 74
    cst_75 = 21,  // 75
    cst_98 = 22,  // 98
    cst_99 = 23,  // 99: other operations
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
