#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// A batch of events for the event service (envEvento): its number and the
// events, signed beforehand, in the order they were appended.
class VELK_EXPORT lote_evento {
public:
    lote_evento();
    lote_evento(lote_evento const& other);
    lote_evento(lote_evento&& other) noexcept;
    lote_evento& operator=(lote_evento const& other);
    lote_evento& operator=(lote_evento&& other) noexcept;
    ~lote_evento();

    std::uint64_t get_id_lote() const;
    void set_id_lote(unsigned long long id_lote);

    // Adds a copy at the end. Nothing is checked and the count is not
    // limited: the authority takes at most 20 events in one batch.
    void append(evento const& value);
    std::vector<evento> get_eventos() const;

    // envEvento versao "1.00" in the NF-e namespace, idLote, and the tree of
    // each event as it stands. An empty batch gives no evento and no failure.
    xml::element get_xml(core::result::stack& stack) const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
