#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/resposta_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/retorno_evento.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// The authority's cStat of an answer sorted for the caller, by what the caller
// does next. The library itself never judges an answer.
enum grupo_status_resposta : int {
    grupo_sucesso = 0,                 // done: what was asked is registered
    grupo_erro_desconhecido = 1,       // 999, the authority's uncatalogued error: try again later
    grupo_servico_indisponivel = 2,    // 108, 109: the service is down, try later or in contingency
    grupo_rejeitado = 3,               // anything else: refused, fix the message
};

// Success is, by answer: 100, 101, 110, 150 and 151 for the query by key (the
// note authorized, cancelled or denied: its situation is known); 102 for a
// disablement; 104 for an authorization batch processed; 100 and 150 for a
// document's protocol (authorized, also out of time); 135 and 151 for a
// cancellation; 135 for a correction letter; 136 for an EPEC (registered
// before the note exists); 135 and 136 for a recipient's manifestation (136
// when the national environment does not know the note yet); 128 for a batch
// of events.
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::consulta const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::inutilizacao const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::lote_autorizacao const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::protocolo_nfe const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::cancelamento const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::carta_correcao const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::epec_nfe const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::manifestacao_destinatario const& resposta);
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::lote_evento const& resposta);
// The answer to one event, by the family it holds. A valueless variant is a
// defect of the caller and ends the process.
VELK_EXPORT int obter_grupo_status_resposta(sefaz_data::resposta::resposta_evento const& resposta);

}  // namespace velk::erp::inline v4::tarn::nfe
