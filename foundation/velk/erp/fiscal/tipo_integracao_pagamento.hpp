#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Whether the card payment is integrated with the point of sale (tag tpIntegra).
enum class tipo_integracao_pagamento : unsigned int {
    integrado = 0,      // tpIntegra 1
    nao_integrado = 1,  // tpIntegra 2
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
