#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How imported goods arrived (tag tpViaTransp).
enum class via_transporte : unsigned int {
    maritima = 0,                  // 1
    fluvial = 1,                   // 2
    lacustre = 2,                  // 3
    aerea = 3,                     // 4
    postal = 4,                    // 5
    ferroviaria = 5,               // 6
    rodoviaria = 6,                // 7
    conduto_rede_transmissao = 7,  // 8: pipeline or power line
    meios_proprios = 8,            // 9
    entrada_saida_ficta = 9,       // 10
    courier = 10,                  // 11
    em_maos = 11,                  // 12: carried by hand
    por_reboque = 12,              // 13: by tow
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
