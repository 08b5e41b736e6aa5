#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Model of a referenced fiscal receipt (tag mod of refECF).
enum class modelo_cupom_fiscal : unsigned int {
    maquina_registradora = 0,  // mod 2B: cash register, not an ECF
    pdv = 1,                   // mod 2C: point-of-sale terminal
    ecf = 2,                   // mod 2D: fiscal printer (ECF)
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
