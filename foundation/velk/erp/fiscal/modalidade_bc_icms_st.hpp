#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How the base of ICMS by substitution was found (tag modBCST); the number is the code itself.
enum class modalidade_bc_icms_st : unsigned int {
    preco_tabelado = 0,         // 0: listed or suggested price
    lista_negativa = 1,         // 1
    lista_positiva = 2,         // 2
    lista_neutra = 3,           // 3
    margem_valor_agregado = 4,  // 4
    pauta = 5,                  // 5
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
