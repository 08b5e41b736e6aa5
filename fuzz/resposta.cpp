// fuzz-dictionary: xml
// Every answer of the authority, read by each reader in turn: a reader given
// another service's answer must refuse it as surely as a broken one.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/resposta_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/status_autorizador.hpp>

namespace {

using namespace velk;
namespace resposta = erp::tarn::nfe::sefaz_data::resposta;

template <class Resposta>
Resposta read(xml::document const& document)
{
    core::result::stack stack;
    Resposta lida = Resposta::from_xml(document, stack);
    (void)lida.get_xml();
    return lida;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::optional<xml::document> const document = fuzz::load(data, size);
    if (!document) {
        return 0;
    }
    read<resposta::status_autorizador>(*document);
    read<resposta::consulta>(*document).get_eventos();
    read<resposta::consulta_gtin>(*document).get_cest();
    read<resposta::inutilizacao>(*document);
    read<resposta::lote_autorizacao>(*document).get_protocolos();
    read<resposta::protocolo_nfe>(*document).get_mensagem_sefaz();
    read<resposta::lote_evento>(*document);
    read<resposta::cancelamento>(*document);
    read<resposta::carta_correcao>(*document);
    read<resposta::epec_nfe>(*document);
    read<resposta::manifestacao_destinatario>(*document);
    core::result::stack stack;
    (void)resposta::resposta_evento_from_xml(*document->get_root_element(), stack);
    return 0;
}
