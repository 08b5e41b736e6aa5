#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/xml/document.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// The consumer QR code address of an NFC-e: informacoes.get_url_qrcode()
// directly followed by the QR string of the version asked for, made from the
// document's values and the digest of its infNFe (the signature's when the
// document is signed, else the one the signature will hold).
//
// A document that already has infNFeSupl/qrCode gives that text as it
// stands, whatever the token, CSC or page: nothing is generated then.
//
// id_token is the number of the CSC: exactly 6 digits in version 1.00, 1 to
// 6 digits in version 2.00 once its leading zeros are dropped, or the token
// "0" (which the layout admits; "00" and longer runs of zeros it does not).
// csc is the taxpayer's
// secret code; it is only hashed, never stored nor reported.
//
// Everything the result holds must stand in the CDATA section of qrCode and
// in the pattern the layout gives it: the page (no control character, valid
// UTF-8), the consumer's identifier of version 1.00 (empty or 5 to 20
// letters, digits and . : + , - / ( )) and the amounts (as the document
// writes them).
//
// Failures: those of documento_fiscal::from_xml, with the empty string;
// processo_gerar_qrcode_result_category code 4 for an unknown version and
// code 8 for a page that cannot be carried ("url_qrcode"), both with the
// empty string; the generator's codes 2, 3, 6, 7 and 8 (also for an
// identifier or an amount the QR code cannot carry:
// "identificador_destinatario", "valor_total", "valor_icms"). After a
// generator failure the text returned is the page alone: always look at the
// stack.
VELK_EXPORT std::string obter_url_qrcode(informacoes_adicionais const& informacoes, xml::document const& documento,
                                         std::string const& id_token, std::string const& csc,
                                         core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe
