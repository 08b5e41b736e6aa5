#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The query of a document by its access key (NFeConsultaProtocolo).
class VELK_EXPORT consulta : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::consulta;
    using resposta_type = sefaz_data::resposta::consulta;

    // The header's state is the key's. Failures, from the top of the stack
    // down: servico code 7 (version without text), code 9 (request XML), what
    // the exchange reports, code 11 (no result document under
    // nfeConsultaNFResult, nfeConsultaNF2Result or nfeResultMsg), code 2
    // (answer not readable; the response then holds what was read).
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
