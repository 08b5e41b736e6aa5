#pragma once

#include <velk/erp/fiscal/nota_fiscal.hpp>

namespace velk::demo {

// The demo's own NFC-e notes, as a point-of-sale program hands them over:
// worked-out totals, keys with their check digits, homologation.

// A sale of a São Paulo grocery, sent to the authority at once: two items,
// paid by debit card, the consumer identified by CPF.
erp::fiscal::nota_fiscal nota_nfce_online();

// A sale of a Curitiba bakery issued while the authority could not be
// reached: offline contingency (tpEmis 9 in ide and in the key), with the
// moment and the reason, paid in cash, no consumer named.
erp::fiscal::nota_fiscal nota_nfce_contingencia();

}  // namespace velk::demo
