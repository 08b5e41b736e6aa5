#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How the buyer was present at the sale (tag indPres).
enum class indicador_presenca : unsigned int {
    nao_se_aplica = 0,                    // indPres 0
    presencial = 1,                       // indPres 1
    internet = 2,                         // indPres 2
    teleatendimento = 3,                  // indPres 3
    entrega_domicilio_nfce = 4,           // indPres 4: NFC-e delivered at home
    presencial_fora_estabelecimento = 5,  // indPres 5
    nao_presencial_outros = 6,            // indPres 9
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
