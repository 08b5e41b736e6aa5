#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/xml/document.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Puts the QR code address of obter_url_qrcode into the document, as an
// infNFeSupl with one qrCode (a CDATA section) placed AHEAD of infNFe, the
// order this function has always written. Use documento_fiscal::gerar_qrcode
// for a document in the order of the layout (infNFe, infNFeSupl, Signature).
//
// Gives false with obter_url_qrcode's failure on the stack, or for a
// document without root (nothing on the stack). Gives true also when there
// is no infNFe and nothing was inserted. An infNFeSupl already present is
// neither looked for nor replaced.
bool adicionar_url_qrcode(informacoes_adicionais const& informacoes, xml::document& documento,
                          std::string const& id_token, std::string const& csc, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe
