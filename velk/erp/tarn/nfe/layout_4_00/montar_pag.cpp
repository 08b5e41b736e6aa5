// Payments: each one with its means and, for a card, the transaction; then
// the change.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// Codes of the layout, indexed by the enumerator of the model.
constexpr std::uint16_t indPag[] = {0, 1};
constexpr std::uint16_t tPag[] = {1, 2, 3, 4, 5, 10, 11, 12, 13, 14, 15, 90, 99, 16, 17, 18, 19};
constexpr std::uint8_t tpIntegra[] = {1, 2};
constexpr std::uint8_t tBand[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                                  15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 99};

// A card payment without its integration type is taken as not integrated
// (2): a terminal apart from the point of sale, the case in which the
// software knows no more of the payment than what the operator keyed in. It
// claims no link with a payment processor, which would make the processor's
// CNPJ, the brand and the authorization code expected of the sale.
constexpr std::uint8_t tpIntegra_sem_tipo = 2;

// "Without payment", the one detPag of a note that has none.
constexpr std::uint16_t tPag_sem_pagamento = 90;

bool montar_card(fiscal::transacao_tef const& transacao, grupo::card& card, core::result::stack& stack)
{
    card.tpIntegra = tpIntegra_sem_tipo;
    if (auto const tipo = transacao.get_tipo_integracao();
        tipo && !mapear<41>(*tipo, tpIntegra, card.tpIntegra, stack)) {
        return false;
    }
    card.CNPJ = transacao.get_cnpj();
    if (auto const bandeira = transacao.get_bandeira();
        bandeira && !mapear<42>(*bandeira, tBand, card.tBand.emplace(), stack)) {
        return false;
    }
    card.cAut = transacao.get_numero_autorizacao();
    return true;
}

bool montar_detPag(fiscal::detalhes_pagamento const& detalhes, grupo::detPag& detPag, core::result::stack& stack)
{
    if (auto const indicador = detalhes.get_indicador_forma_pagamento();
        indicador && !mapear<39>(*indicador, indPag, detPag.indPag.emplace(), stack)) {
        return false;
    }
    if (!mapear<40>(detalhes.get_meio_pagamento(), tPag, detPag.tPag, stack)) {
        return false;
    }
    detPag.xPag = detalhes.get_descricao_meio_pagamento();
    detPag.vPag = detalhes.get_valor_pagamento();
    auto const transacao = detalhes.get_transacao_tef();
    return !transacao || montar_card(*transacao, detPag.card.emplace(), stack);
}

}  // namespace

// A note without any payment has the one detPag of "without payment", of
// value zero: pag needs at least one.
bool montar_pag(fiscal::informacoes_pagamento const& pagamento, grupo::pag& pag, core::result::stack& stack)
{
    for (fiscal::detalhes_pagamento const& detalhes : pagamento.get_detalhes_pagamento()) {
        if (!montar_detPag(detalhes, pag.detPag.emplace_back(), stack)) {
            return false;
        }
    }
    if (pag.detPag.empty()) {
        pag.detPag.emplace_back().tPag = tPag_sem_pagamento;
    }
    pag.vTroco = pagamento.get_valor_total_troco();
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
