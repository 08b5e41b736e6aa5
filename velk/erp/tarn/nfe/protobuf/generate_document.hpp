#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/detail/protobuf/NotaFiscal.pb.h>
#include <velk/xml/document.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

// The unsigned NF-e or NFC-e of a note given as a NotaFiscal message, beside
// the fiscal model: the message states every value (totals, key, tax groups)
// and is written as it stands, through the same writer as a document of the
// model. Absent parts read as their defaults.
//
// The values that have no code in the layout, or that the layout's schema
// would refuse in their place, are refused with the codes of
// processar_nota_result_category and the argument "value"; the first refusal
// ends the generation, and the result is then an empty document. No exception
// leaves these functions.
//
// Layout 4.00, with Id "NFe" followed by chave_acesso as it stands.
VELK_EXPORT xml::document generate_document_4_00(::velk::internal::nfe::serialization::NotaFiscal const& nota,
                                                 core::result::stack& stack);

// Layout 3.10, read as 4.00 is and with the same refusals, since what 4.00
// refuses the schema of 3.10 refuses as well, with these differences: ide's
// indPag from indice_pagamento (PagamentoAVista 0, PagamentoAPrazo 1, Outros
// 2) and no indIntermed; indPres without 5, the sale outside the
// establishment being in person (1); the places of pick-up and delivery, the
// intermediary and the technical manager are not read; pag is one group per
// payment, without indPag, xPag and the change, and none at all for a note
// without payments; the nine means of payment 3.10 knows (cash, cheque,
// credit and debit card, store credit, food, meal, gift and fuel vouchers)
// keep their codes and the others are 99, "other", as are the card brands
// after the fourth; own transport (3 and 4) is freight of the sender (0) or
// of the recipient (1); comb's pMixGN is the sum of the imported and national
// natural gas of the GLP mix, when the mix is given. ICMSST holds only CST 41.
VELK_EXPORT xml::document generate_document_3_10(::velk::internal::nfe::serialization::NotaFiscal const& nota,
                                                 core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf
