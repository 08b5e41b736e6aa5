#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The query of an asynchronous batch by its receipt (NFeRetAutorizacao). An
// answer "in processing" (105) is a success: asking again later is the
// caller's decision.
class VELK_EXPORT consulta_recibo : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::consulta_recibo;
    using resposta_type = sefaz_data::resposta::lote_autorizacao;

    // The header's state is the request's. Failures, from the top of the
    // stack down: servico code 12, 8 or 7 (state, environment or version
    // without text, checked in that order), code 9 (request XML), what the
    // exchange reports, code 11 (no result document under
    // nfeRetAutorizacaoLoteResult, nfeRetAutorizacaoResult or nfeResultMsg),
    // code 2 (answer not readable; the response is then a default one).
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
