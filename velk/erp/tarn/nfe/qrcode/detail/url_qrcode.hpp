#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// obter_url_qrcode of a document already read: its QR code when it has one,
// else the address made from its values. The document that gerar_qrcode
// completes is its own reading, so it comes here as it is, with neither a
// copy of its tree nor a second reading.
std::string url_qrcode(informacoes_adicionais const& informacoes,
                       sefaz_data::requisicao::documento_fiscal const& documento, std::string const& id_token,
                       std::string const& csc, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::detail
