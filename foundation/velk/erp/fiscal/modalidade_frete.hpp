#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Who pays and carries the freight (tag modFrete).
enum class modalidade_frete : unsigned int {
    por_conta_remetente = 0,     // modFrete 0: hired by the sender (CIF)
    por_conta_destinatario = 1,  // modFrete 1: hired by the recipient (FOB)
    por_conta_terceiros = 2,     // modFrete 2
    proprio_remetente = 3,       // modFrete 3: the sender's own transport
    proprio_destinatario = 4,    // modFrete 4: the recipient's own transport
    sem_transporte = 5,          // modFrete 9: no transport
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
