#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Card brand (tag tBand).
enum class bandeira_cartao : unsigned int {
    visa = 0,              // 01
    mastercard = 1,        // 02
    american_express = 2,  // 03
    sorocred = 3,          // 04
    diners_club = 4,       // 05
    elo = 5,               // 06
    hipercard = 6,         // 07
    aura = 7,              // 08
    cabal = 8,             // 09
    alelo = 9,             // 10
    banes_card = 10,       // 11
    calcard = 11,          // 12
    credz = 12,            // 13
    discover = 13,         // 14
    goodcard = 14,         // 15
    greencard = 15,        // 16
    hiper = 16,            // 17
    jcb = 17,              // 18
    mais = 18,             // 19
    maxvan = 19,           // 20
    policard = 20,         // 21
    redecompras = 21,      // 22
    sodexo = 22,           // 23
    valecard = 23,         // 24
    verocheque = 24,       // 25
    vr = 25,               // 26
    ticket = 26,           // 27
    outros = 27,           // 99
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
