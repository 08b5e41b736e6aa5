#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Who issued a referenced legal or administrative process (tag indProc); the number is the code itself, with a gap
// between 3 and 9.
enum class indicador_origem_processo : unsigned int {
    sefaz = 0,             // 0
    justica_federal = 1,   // 1
    justica_estadual = 2,  // 2
    secex_rfb = 3,         // 3
    outros = 9,            // 9
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
