#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The status service of an authorizer (NfeStatusServico): the shortest call
// from request to response.
class VELK_EXPORT status_autorizador : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::status_autorizador;
    using resposta_type = sefaz_data::resposta::status_autorizador;

    // Sends the query to the server `servidor` describes and reads the answer.
    // The answer's status is not judged: 107 and 108 alike are successes here.
    // Failures, from the top of the stack down: servico code 7 or 12 over the
    // converter (version or state without text), code 9 (request XML), what
    // the exchange reports (codes 3, 4, 5, 16, curl_result_category), code 11
    // over processo_recuperar_resposta_result_category (no result document
    // under nfeStatusServicoNFResult, nfeStatusServicoNF2Result or
    // nfeResultMsg), code 2 over sefaz_data::result_category (answer not
    // readable; the response then holds what was read). Any other failure
    // gives a default response.
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
