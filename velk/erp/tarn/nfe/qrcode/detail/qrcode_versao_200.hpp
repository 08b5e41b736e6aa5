#pragma once

// Inside the library only: the QR string of version 2.00.

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// The QR string of version 2.00, without the consultation page:
//
//   online:  p=<key>|2|<tpAmb>|<token>|<HASH>
//   offline: p=<key>|2|<tpAmb>|<day of dhEmi>|<vNF>|<hex of digest>|<token>|<HASH>
//
// Offline means the emission type of the access key (not of ide) is the
// NFC-e offline contingency (tpEmis 9); only then are the date, vNF and the
// digest looked at. The token must be 1 to 6 digits, the first not 0, or "0"
// alone, and is written as given (callers strip its leading zeros first, see
// sem_zeros_a_esquerda). Failures as in version 1.00: code 8 chained on a
// value without text or for an amount the QR code cannot carry, then
// codes 7, 3, 2 and 6 replacing the stack; any failure gives an empty string.
// An environment other than the two known ones ends the process: a document
// read by from_xml cannot hold one.
std::string gerar_qrcode_versao_200(sefaz_data::requisicao::documento_fiscal const& documento,
                                    std::string const& digest, std::string const& id_token, std::string const& csc,
                                    core::result::stack& stack);

// The token as version 2.00 writes it: without its leading zeros, unless it
// is made of zeros only (or empty), when it stays as it is.
std::string sem_zeros_a_esquerda(std::string const& id_token);

}  // namespace velk::erp::inline v4::tarn::nfe::detail
