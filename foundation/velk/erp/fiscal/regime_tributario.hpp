#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Tax regime of the issuer (tag CRT).
enum class regime_tributario : unsigned int {
    simples_nacional = 0,                    // CRT 1
    simples_nacional_excesso_sublimite = 1,  // CRT 2: gross revenue above the sub-limit
    regime_normal = 2,                       // CRT 3
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
