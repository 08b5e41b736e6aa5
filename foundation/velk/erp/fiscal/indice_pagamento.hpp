#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Form of payment of the whole note, as the older layout 3.10 writes it (tag indPag of ide).
enum class indice_pagamento : unsigned int {
    a_vista = 0,  // indPag 0
    a_prazo = 1,  // indPag 1
    outros = 2,   // indPag 2
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
