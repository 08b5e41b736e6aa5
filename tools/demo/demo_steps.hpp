#pragma once

#include "demo_authority.hpp"
#include "demo_context.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>

namespace velk::demo {

// The steps of the demo, in the order they run. Each lives in a file of its
// own and throws demo_failure with the failure report when the library fails.
void run_signature_step(demo_context& context);
// The signed document and the three query messages (consSitNFe, consReciNFe, consGTIN).
void run_queries_step(demo_context& context);
// A status query through the local SEFAZ simulator, over mutual TLS.
void run_status_step(demo_context& context);
// An NFC-e and an NF-e of layout 4.00 generated from fiscal models and signed.
void run_generation_step(demo_context& context);
// NFC-e generated from notes, with the QR code in versions 1.00 and 2.00,
// online and in offline contingency, and urlChave; signed.
void run_qrcode_step(demo_context& context);
// An NFC-e issued from a note written as JSON into the output folder.
void run_json_step(demo_context& context);
// What the authorization step leaves to the steps after it: the signed
// documents with their protocols, and the disablement with its answer.
struct road_results {
    erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal nfce;
    erp::tarn::nfe::sefaz_data::resposta::protocolo_nfe nfce_protocolo;
    erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal nfe;
    erp::tarn::nfe::sefaz_data::resposta::protocolo_nfe nfe_protocolo;
    erp::tarn::nfe::sefaz_data::requisicao::inutilizacao inutilizacao;
    erp::tarn::nfe::sefaz_data::resposta::inutilizacao inutilizacao_resposta;
};

// The road to authorization against the simulator acting as authority: an
// NFC-e authorized synchronously, an NF-e through its receipt, the query by
// key of both, a range of numbers disabled and a GTIN query; the documents
// written beside their protocols, and the disabled range beside its answer,
// as the library archives them.
road_results run_authorization_step(demo_context& context, demo_authority& sefaz);
// The events of the notes of the authorization step, at the same authority:
// the NFC-e cancelled, a correction letter and the recipient's confirmation
// of the NF-e, and the query by key that tells them.
// Registered events are archived beside their answers.
void run_events_step(demo_authority& sefaz, road_results const& road);
// The NF-e of the generation step in layout 3.10, signed.
void run_layout_3_10_step(demo_context& context);

}  // namespace velk::demo
