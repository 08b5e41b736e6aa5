#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Origin of the goods (tag orig); the number is the origin code itself.
enum class origem_mercadoria : unsigned int {
    nacional = 0,                                   // 0
    estrangeira_importacao_direta = 1,              // 1
    estrangeira_mercado_interno = 2,                // 2: bought on the home market
    nacional_conteudo_importado_acima_40 = 3,       // 3: import content above 40%
    nacional_processo_produtivo_basico = 4,         // 4
    nacional_conteudo_importado_ate_40 = 5,         // 5: import content up to 40%
    estrangeira_importacao_direta_sem_similar = 6,  // 6
    estrangeira_mercado_interno_sem_similar = 7,    // 7
    nacional_conteudo_importado_acima_70 = 8,       // 8: import content above 70%
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
