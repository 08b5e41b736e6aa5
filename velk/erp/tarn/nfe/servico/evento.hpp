#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_evento.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The event service (NFeRecepcaoEvento): sends a batch of signed events and
// reads the answer to each.
class VELK_EXPORT evento : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::lote_evento;
    using resposta_type = sefaz_data::resposta::lote_evento;

    // Kept and copied with the service; the calls do not read it: the event
    // layout has one version, "1.00", and that is what the header carries.
    void set_versao(versao value);
    versao get_versao() const;

    // Sends the batch to the server `servidor` describes, with versaoDados
    // "1.00" and the state of the first event's key in the header, and reads
    // the answer. The answer's status is not judged: a rejected event is a
    // successful call (see obter_grupo_status_resposta).
    //
    // Before anything is built, fresh reports: an empty batch is
    // servico_evento_result_category code 1; a cancellation by substitution
    // of a note that is not an NFC-e is servico code 15 (expected 1, the
    // model), of a note not issued normally code 14 (expected 0), without
    // substitute key code 13, with a substitute not issued in offline
    // contingency code 14 (expected 7). Then, from the top of the stack down:
    // code 9 (request XML), what the exchange reports (codes 3, 4, 5, 16,
    // curl_result_category), code 11 over
    // processo_recuperar_resposta_result_category (no result document under
    // nfeRecepcaoEventoResult or nfeResultMsg), code 2 over
    // sefaz_data::result_category (answer not readable; the response then
    // holds what was read). Any other failure gives a default response.
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;

private:
    versao versao_ = versao::versao_3_10;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
