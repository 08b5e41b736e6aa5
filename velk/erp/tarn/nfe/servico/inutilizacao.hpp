#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The disablement service (NFeInutilizacao): sends a signed inutNFe as it
// stands, so sign it first.
class VELK_EXPORT inutilizacao : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::inutilizacao;
    using resposta_type = sefaz_data::resposta::inutilizacao;

    // The header's state is the request's. Failures, from the top of the
    // stack down: servico code 7 or 12 (version or state without text), code
    // 9 (the request holds no tree), what the exchange reports, code 11 (no
    // result document under nfeInutilizacaoNFResult, nfeInutilizacaoNF2Result
    // or nfeResultMsg), code 2 (answer not readable; the response then holds
    // what was read).
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
