#pragma once

// Inside the library only: the consultation page of the NFC-e QR code of each
// state, for the callers that receive no page of their own (the exported C
// functions). The class interface takes the page from the caller instead.

#include <velk/core/result/stack.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// The public page to which the QR string is appended as it stands (it ends in
// "?", which the layout requires before the QR string), chosen by environment, state and, for PR only, layout
// version. An environment other than the two known ones gives the empty
// string and reports nothing. A state without a page (MA in homologation, a
// number that is no state, PR in a layout it has no page for) replaces the
// stack with processo_gerar_qrcode_result_category code 5 and the state's
// text; when the state has no text, the converter's failure is pushed
// instead. PR in layout 2.00 is code 9 with "versao-nfe" "2.00". Failures
// give the empty string.
std::string obter_url_consulta_qrcode(ambiente tipo_ambiente, versao versao_layout, estado uf,
                                      core::result::stack& stack);

// The same for the environment, layout version and state of a document.
std::string obter_url_consulta_qrcode(sefaz_data::requisicao::documento_fiscal const& documento,
                                      core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::detail
