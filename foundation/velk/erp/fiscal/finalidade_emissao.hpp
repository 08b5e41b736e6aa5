#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Purpose of the note (tag finNFe).
enum class finalidade_emissao : unsigned int {
    normal = 0,        // finNFe 1
    complementar = 1,  // finNFe 2
    ajuste = 2,        // finNFe 3
    devolucao = 3,     // finNFe 4: return of goods
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
