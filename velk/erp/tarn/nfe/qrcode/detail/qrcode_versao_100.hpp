#pragma once

// Inside the library only: the QR string of version 1.00.

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// The QR string of version 1.00, without the consultation page:
//
//   chNFe=<key>&nVersao=100&tpAmb=<1|2>[&cDest=<identifier>]&dhEmi=<hex of dhEmi>
//   &vNF=<vNF>&vICMS=<vICMS>&digVal=<hex of digest>&cIdToken=<token>&cHashQRCode=<HASH>
//
// `digest` is the Base64 DigestValue of infNFe, signed or about to be. The
// token must be exactly 6 digits and is written as given. Checks run in the
// order the string is built: a value without text, a consumer's identifier
// or an amount the QR code cannot carry is code 8 (chained on the
// converter's failure, if any), then the digest's length (code 7), the token
// (code 3), the CSC (code 2) and the hash (code 6), which replace the stack.
// Any failure gives an empty string.
std::string gerar_qrcode_versao_100(sefaz_data::requisicao::documento_fiscal const& documento,
                                    std::string const& digest, std::string const& id_token, std::string const& csc,
                                    core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::detail
