#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// Which cancellation an event is: of an authorized note (event 110111), or of
// an NFC-e replaced by one issued in offline contingency (110112).
enum class tipo_cancelamento : int {
    normal = 0,
    substituicao = 1,
};

// The payload of a cancellation event: its detEvento, built once by from_data
// and kept. Lengths and characters of the texts are not checked: the
// authority judges them.
class VELK_EXPORT cancelamento {
public:
    cancelamento();
    cancelamento(cancelamento const& other);
    cancelamento(cancelamento&& other) noexcept;
    cancelamento& operator=(cancelamento const& other);
    cancelamento& operator=(cancelamento&& other) noexcept;
    ~cancelamento();

    // An ordinary cancellation of the note authorized under `protocolo`:
    // descEvento "Cancelamento", nProt, xJust.
    static cancelamento from_data(std::string const& justificativa, unsigned long long protocolo,
                                  core::result::stack& stack);
    // A cancellation by substitution: descEvento "Cancelamento por
    // substituicao", cOrgaoAutor, tpAutor 1 (the issuer), verAplic, nProt,
    // xJust and chNFeRef, the key of the note that replaces this one. A value
    // without text is code 9 ("cancelamento_substituicao" and "orgao_autor",
    // "protocolo_autorizacao" or "chave_substituta") on top of the converter's
    // failure, and a default object.
    static cancelamento from_data(std::string const& justificativa, unsigned long long protocolo,
                                  unsigned short codigo_orgao_autor, std::string const& versao_aplicativo,
                                  chave_acesso const& substituta, core::result::stack& stack);

    // Reads a detEvento; the kind comes from the event's tpEvento, never from
    // the tree. A substitution reads cOrgaoAutor, verAplic and chNFeRef when
    // present and needs tpAutor (its value is not read); both kinds need
    // nProt and xJust. A substitution without chNFeRef reads, and the event
    // service refuses it. A missing tag is code 1 ("detEvento/" and the tag),
    // a value that does not convert code 2 over the converter's failure;
    // either gives a default object. The element is kept whole, also what was
    // not read.
    static cancelamento from_xml(xml::element const& det_evento, tipo_cancelamento tipo,
                                 core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static cancelamento from_xml(xml::document const& documento, tipo_cancelamento tipo,
                                 core::result::stack& stack);

    std::uint64_t get_protocolo_autorizacao() const;
    std::string get_justificativa() const;
    core::optional<std::uint16_t> get_codigo_orgao_autor() const;
    core::optional<std::string> get_versao_aplicativo() const;
    core::optional<chave_acesso> get_chave_acesso_substituta() const;
    tipo_cancelamento get_tipo_cancelamento() const;
    // The detEvento; an element with an empty name in a default object.
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
