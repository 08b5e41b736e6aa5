#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Means of payment (tag tPag).
enum class meio_pagamento : unsigned int {
    dinheiro = 0,                 // 01
    cheque = 1,                   // 02
    cartao_credito = 2,           // 03
    cartao_debito = 3,            // 04
    credito_loja = 4,             // 05: store credit
    vale_alimentacao = 5,         // 10
    vale_refeicao = 6,            // 11
    vale_presente = 7,            // 12
    vale_combustivel = 8,         // 13
    duplicata_mercantil = 9,      // 14
    boleto_bancario = 10,         // 15
    sem_pagamento = 11,           // 90
    outros = 12,                  // 99
    deposito_bancario = 13,       // 16
    pagamento_instantaneo = 14,   // 17: PIX
    transferencia_bancaria = 15,  // 18
    programa_fidelidade = 16,     // 19: loyalty programme or cashback
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
