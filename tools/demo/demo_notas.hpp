#pragma once

#include <velk/erp/fiscal/nota_fiscal.hpp>

namespace velk::demo {

// The demo's own sales, as an application fills the fiscal model: the issuer
// is the holder of the demo's throw-away certificate.

// The token and CSC of the QR codes: homologation values made up for the
// demo; a taxpayer gets its own from its state, and these are no one's.
inline constexpr char demo_id_token[] = "000001";
inline constexpr char demo_csc[] = "D3M0C5C0-0000-4A1B-9C2D-5E6F7A8B9C0D";

// An NFC-e of a shop in São Paulo: two items, a card payment and cash with
// change, in homologation.
erp::fiscal::nota_fiscal demo_nfce();

// The same sale issued while the authority could not be reached: offline
// contingency (tpEmis 9 in ide and in the key), with the moment and the
// reason, the next number, and the consumer named by CPF.
erp::fiscal::nota_fiscal demo_nfce_contingencia();

// An NF-e of the same shop to a company in Campinas: goods with IPI, ICMS by
// substitution, a carrier and a bill in two instalments.
erp::fiscal::nota_fiscal demo_nfe();

}  // namespace velk::demo
