#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax situation of ICMS for the Simples Nacional (tag CSOSN).
enum class csosn : unsigned int {
    csosn_101 = 0,  // 101: taxed, with credit allowed
    csosn_102 = 1,  // 102: taxed, without credit
    csosn_103 = 2,  // 103: exempt within the revenue band
    csosn_201 = 3,  // 201: with credit and substitution
    csosn_202 = 4,  // 202: without credit, with substitution
    csosn_203 = 5,  // 203: exempt, with substitution
    csosn_300 = 6,  // 300: immune
    csosn_400 = 7,  // 400: not taxed
    csosn_500 = 8,  // 500: charged before by substitution
    csosn_900 = 9,  // 900: others
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
