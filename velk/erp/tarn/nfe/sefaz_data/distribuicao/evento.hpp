#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/resposta_evento.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao {

// An event with the authority's answer (procEventoNFe), kept as the proof of
// a cancellation, a correction letter, an EPEC or a manifestation. As with
// nfeProc the pairing is structural, and the object is its tree.
class VELK_EXPORT evento {
public:
    // An empty procEventoNFe.
    evento();

    // procEventoNFe in the NF-e namespace, versao "1.00", then copies of the
    // signed evento and of the retEvento of the alternative held, unchanged.
    // A failure of the XML library stays as it came, with an empty object. A
    // variant without value ends the process: it cannot be made but by a
    // defect.
    static evento from_data(requisicao::evento const& requisicao, resposta::resposta_evento const& resposta,
                            core::result::stack& stack);
    // Reads the evento and the retEvento, stopping at the first failure of
    // their readers, and pairs them as from_data.
    static evento from_xml(xml::element const& evento, xml::element const& resposta, core::result::stack& stack);
    // The same from a stored procEventoNFe (another root is code 1
    // "procEventoNFe"). The event is the direct child evento, or, where the
    // archive kept the batch, the one evento of its envEvento: a second one
    // is code 11, none code 1 "procEventoNFe/evento". A missing retEvento is
    // code 1 "procEventoNFe/retEvento".
    static evento from_xml(xml::element const& proc_evento, core::result::stack& stack);

    // The parts read from the tree: a missing child is code 1
    // "procEventoNFe/evento" or "procEventoNFe/retEvento"; after any failure
    // the part is an empty one.
    requisicao::evento get_requisicao(core::result::stack& stack) const;
    resposta::resposta_evento get_resposta(core::result::stack& stack) const;
    xml::element get_xml() const;

private:
    xml::element xml_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao
