#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The answer to the query of a document by its access key (retConsSitNFe):
// the document's situation (100 authorized, 101 cancelled, 110 denied, 217
// unknown to the authority...) with its protocol when it has one.
class VELK_EXPORT consulta {
public:
    consulta();
    consulta(consulta const& other);
    consulta(consulta&& other) noexcept;
    consulta& operator=(consulta const& other);
    consulta& operator=(consulta&& other) noexcept;
    ~consulta();

    // cStat, xMotivo, dhRecbto (required).
    unsigned int get_codigo_status() const;
    std::string get_motivo() const;
    // Always empty: this answer's verAplic has never been read.
    std::string get_versao_aplicativo() const;
    core::datetime get_data_recebimento() const;
    // chNFe and protNFe (optional).
    core::optional<chave_acesso> get_chave_acesso() const;
    core::optional<protocolo_nfe> get_protocolo_nfe() const;
    // The events registered about the document (each procEventoNFe), in the
    // order of the answer.
    std::vector<distribuicao::evento> get_eventos() const;
    // A copy of the element read, unchanged; an element with an empty name
    // when nothing was read.
    xml::element get_xml() const;

    // Reads retConsSitNFe; another root is code 1 ("retConsSitNFe"). A missing
    // required tag is code 1 ("retConsSitNFe/" and the tag), a value that does
    // not read code 2 over the converter's failure (chNFe too:
    // "retConsSitNFe/chNFe"); the protocol's failures are those of
    // protocolo_nfe::from_xml, those of an event those of
    // distribuicao::evento::from_xml. Reading stops at the first failure and keeps
    // what was read, and the tree in any case. Neither versao nor tpAmb is
    // read.
    static consulta from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the document's root; a document without root is code 5.
    static consulta from_xml(xml::document const& document, core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
