// Payments, for now: tPag and vPag of each payment, and vTroco. indPag, xPag
// and card come with the closing groups, which replace this file.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t tPag[] = {1, 2, 3, 4, 5, 10, 11, 12, 13, 14, 15, 90, 99, 16, 17, 18, 19};

}  // namespace

bool montar_pag(fiscal::informacoes_pagamento const& pagamento, grupo::pag& pag, core::result::stack& stack)
{
    for (fiscal::detalhes_pagamento const& detalhes : pagamento.get_detalhes_pagamento()) {
        grupo::detPag& detPag = pag.detPag.emplace_back();
        if (!mapear<40>(detalhes.get_meio_pagamento(), tPag, detPag.tPag, stack)) {
            return false;
        }
        detPag.vPag = detalhes.get_valor_pagamento();
    }
    pag.vTroco = pagamento.get_valor_total_troco();
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
