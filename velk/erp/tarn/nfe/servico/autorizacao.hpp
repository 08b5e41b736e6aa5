#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The authorization service (NFeAutorizacao): sends a batch of signed
// documents. Synchronous or not is the batch's own indicador_sincrono; both
// are sent alike and both answers are read by resposta::lote_autorizacao.
// Querying the receipt of an asynchronous batch is the caller's next call
// (consulta_recibo): nothing here polls or retries.
class VELK_EXPORT autorizacao : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::lote_autorizacao;
    using resposta_type = sefaz_data::resposta::lote_autorizacao;

    // The header's state is the first document's; versaoDados is the batch's
    // version. The answer's status is not judged: a rejected batch or
    // document is a successful call. Failures, from the top of the stack
    // down: servico code 7 (batch version without text), code 9 over the
    // batch's failure (no first document, or it does not read), code 12 or 8
    // (that document's state or environment without text), the batch's own
    // failure (its XML: sefaz_data code 9, or 7), code 9 (the document
    // refuses the tree), what the
    // exchange reports, code 11 (no result document under
    // nfeAutorizacaoLoteResult or nfeResultMsg), code 2 (answer not
    // readable). Any failure gives a default response.
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
