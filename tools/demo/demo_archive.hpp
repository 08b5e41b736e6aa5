#pragma once

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/resposta_evento.hpp>

#include <string>

namespace velk::demo {

// What the issuer keeps of the road: each request beside the authority's
// answer, as the library archives them, and read back once to show that the
// archive gives the parts again. Throw demo_failure when the library fails.

// The authorized document with its protocol: nfeProc.
std::string archive_authorization(erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal const& documento,
                                  erp::tarn::nfe::sefaz_data::resposta::protocolo_nfe const& protocolo);
// The signed event with the authority's answer: procEventoNFe.
std::string archive_event(erp::tarn::nfe::sefaz_data::requisicao::evento const& evento,
                          erp::tarn::nfe::sefaz_data::resposta::resposta_evento const& resposta);
// The disabled range with the answer: ProcInutNFe.
std::string archive_disablement(erp::tarn::nfe::sefaz_data::requisicao::inutilizacao const& pedido,
                                erp::tarn::nfe::sefaz_data::resposta::inutilizacao const& resposta);

}  // namespace velk::demo
