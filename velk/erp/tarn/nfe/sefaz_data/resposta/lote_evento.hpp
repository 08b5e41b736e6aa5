#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/resposta_evento.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The event service's answer to a batch (retEnvEvento): the batch's own status
// (128 when its events were processed) and the answer to each event, in the
// order of the tree. A batch rejected as a whole has no event answers.
class VELK_EXPORT lote_evento {
public:
    lote_evento();
    lote_evento(lote_evento const& other);
    lote_evento(lote_evento&& other) noexcept;
    lote_evento& operator=(lote_evento const& other);
    lote_evento& operator=(lote_evento&& other) noexcept;
    ~lote_evento();

    std::uint32_t get_codigo_status() const;
    std::string get_motivo() const;
    std::vector<resposta_evento> get_eventos() const;
    // The retEnvEvento as it came; an element with an empty name when nothing
    // was read.
    xml::element get_xml() const;

    // Reads cStat and xMotivo (code 1 "retEnvEvento/cStat" or
    // "retEnvEvento/xMotivo" when missing) and each direct child retEvento by
    // resposta_evento_from_xml. A root of another name is code 1
    // "retEnvEvento". A failure in any retEvento fails the whole batch: the
    // result is then a default object. Status and text read before another
    // failure, and the tree, are kept.
    static lote_evento from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static lote_evento from_xml(xml::document const& documento, core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
