#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Whether a payment is in cash or in instalments (tag indPag of detPag).
enum class indicador_forma_pagamento : unsigned int {
    a_vista = 0,  // indPag 0
    a_prazo = 1,  // indPag 1
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
