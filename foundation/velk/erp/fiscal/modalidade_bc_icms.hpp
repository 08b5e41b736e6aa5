#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How the ICMS base was found (tag modBC); the number is the code itself.
enum class modalidade_bc_icms : unsigned int {
    margem_valor_agregado = 0,  // 0
    pauta = 1,                  // 1: reference price
    preco_tabelado = 2,         // 2: maximum price
    valor_operacao = 3,         // 3
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
