#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/xml/document.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Puts the QR code address of obter_url_qrcode and the urlChave of
// informacoes into the document's infNFeSupl, in the layout's order: the
// supplement right after infNFe (made there when absent), qrCode first and
// urlChave last, each a CDATA section replacing any former one.
//
// Gives false with a failure on the stack: obter_url_qrcode's, or code 8 of
// processo_gerar_qrcode_result_category ("url_chave") for an absent urlChave
// or one that no CDATA section can carry; the document is then unchanged. A
// document without root gives false with nothing on the stack.
VELK_EXPORT bool adicionar_url_qrcode(informacoes_adicionais const& informacoes, xml::document& documento,
                                      std::string const& id_token, std::string const& csc, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe
