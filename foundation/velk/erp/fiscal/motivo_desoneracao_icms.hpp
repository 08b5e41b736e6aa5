#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Why ICMS was relieved (tag motDesICMS).
enum class motivo_desoneracao_icms : unsigned int {
    taxi = 0,                               // 1
    deficiente_fisico = 1,                  // 2
    produtor_agropecuario = 2,              // 3
    frotista_locadora = 3,                  // 4: fleet or rental company
    diplomatico_consular = 4,               // 5
    amazonia_ocidental_livre_comercio = 5,  // 6
    suframa = 6,                            // 7
    venda_orgao_publico = 7,                // 8: sale to a public body
    outros = 8,                             // 9
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
