#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/detail/tipo_evento.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The families of events, each with its answer class below.
enum class familia_evento : int {
    cancelamento = 0,               // 110111 and 110112
    carta_correcao = 1,             // 110110
    epec_nfe = 2,                   // 110140
    manifestacao_destinatario = 3,  // 210200, 210210, 210220 and 210240
};

// The authority's answer to one event (retEvento), as the answer classes of
// the event families share it: they differ only in the event types they
// accept.
class VELK_EXPORT retorno_evento {
public:
    // cStat, xMotivo and dhRegEvento (required); chNFe and nProt, the number
    // under which the event was registered (absent from a rejection).
    std::uint32_t get_codigo_status() const;
    std::string get_motivo() const;
    core::datetime get_data_registro_evento() const;
    core::optional<chave_acesso> get_chave_acesso() const;
    core::optional<std::uint64_t> get_numero_protocolo() const;
    // The retEvento as it came, kept whole for archiving; an element with an
    // empty name when nothing was read.
    xml::element get_xml() const;

protected:
    retorno_evento();
    retorno_evento(retorno_evento const& other);
    retorno_evento(retorno_evento&& other) noexcept;
    retorno_evento& operator=(retorno_evento const& other);
    retorno_evento& operator=(retorno_evento&& other) noexcept;
    ~retorno_evento();

    // Reads retEvento into `destino`, which keeps the element in any case and
    // the values read before a failure. A root of another name is a fresh
    // code 1 "retEvento"; a missing required tag code 1 with its path
    // ("retEvento/infEvento/cStat"); a value that does not convert code 2
    // with its name and text over the converter's failure. tpEvento may be
    // absent (a rejected event has none); present, a type outside the family
    // is a fresh code 8 with the family's expected text ("110111 ou
    // 110112", "110110", "110140", "210200, 210210, 210220 ou 210240") and
    // the tag's text.
    static void ler(retorno_evento& destino, xml::element const& root, familia_evento familia,
                    core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

// The answer class of one family.
template <familia_evento Familia>
class VELK_EXPORT retorno_familia : public retorno_evento {
public:
    // Reads a retEvento (see retorno_evento::ler).
    static retorno_familia from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static retorno_familia from_xml(xml::document const& documento, core::result::stack& stack);
};

extern template class retorno_familia<familia_evento::cancelamento>;
extern template class retorno_familia<familia_evento::carta_correcao>;
extern template class retorno_familia<familia_evento::epec_nfe>;
extern template class retorno_familia<familia_evento::manifestacao_destinatario>;

// The answer to a cancellation, ordinary or by substitution; its nProt is the
// protocol of the cancellation.
using cancelamento = retorno_familia<familia_evento::cancelamento>;
// The answer to a correction letter.
using carta_correcao = retorno_familia<familia_evento::carta_correcao>;
// The answer to an EPEC: 136 when registered, the note being not yet known.
using epec_nfe = retorno_familia<familia_evento::epec_nfe>;
// The answer to a recipient's manifestation.
using manifestacao_destinatario = retorno_familia<familia_evento::manifestacao_destinatario>;

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
