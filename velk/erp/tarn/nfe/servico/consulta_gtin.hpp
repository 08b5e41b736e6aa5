#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

// The query of the national GTIN catalogue (ccgConsGtin). Its envelope is of
// another shape than the other services': no nfeCabecMsg header, whatever
// namespace_header says, and the body tag ccgConsGTIN holding nfeDadosMsg
// (without prefix) with the consGTIN inside.
class VELK_EXPORT consulta_gtin : public servico_base {
public:
    using requisicao_type = sefaz_data::requisicao::consulta_gtin;
    using resposta_type = sefaz_data::resposta::consulta_gtin;

    // Failures, from the top of the stack down: servico code 9 (request XML),
    // what the exchange reports, code 11 (no result document under
    // ccgConsGTINResponse), code 2 (answer not readable; the response then
    // holds what was read).
    resposta_type executar(requisicao_type const& requisicao, web_server_info const& servidor,
                           core::result::stack& result) const;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
