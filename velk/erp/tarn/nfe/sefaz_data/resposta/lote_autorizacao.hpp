#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The answer to an authorization batch (retEnviNFe) and to the query of its
// receipt (retConsReciNFe). A synchronous batch comes back processed (104)
// with one protocol per document; an asynchronous one comes back received
// (103) with the receipt in infRec, whose query later gives the protocols.
// A status of the batch other than these means nothing in it was looked at.
class VELK_EXPORT lote_autorizacao {
public:
    lote_autorizacao();
    lote_autorizacao(lote_autorizacao const& other);
    lote_autorizacao(lote_autorizacao&& other) noexcept;
    lote_autorizacao& operator=(lote_autorizacao const& other);
    lote_autorizacao& operator=(lote_autorizacao&& other) noexcept;
    ~lote_autorizacao();

    // cStat, xMotivo, verAplic, dhRecbto of the batch (required).
    unsigned int get_codigo_status() const;
    std::string get_motivo() const;
    std::string get_versao_aplicativo() const;
    core::datetime get_data_recebimento() const;
    // infRec/nRec: the receipt of an asynchronous batch. The nRec that a
    // receipt query echoes directly under its root is not read.
    core::optional<unsigned long long> get_numero_recibo() const;
    // One protocol per document, in the order of the answer.
    std::vector<protocolo_nfe> get_protocolos() const;
    // A copy of the element read, unchanged; an element with an empty name
    // when nothing was read.
    xml::element get_xml() const;

    // Reads retEnviNFe or retConsReciNFe; another root is code 1
    // ("retEnviNFe"). A missing required tag is code 1 named by the root and
    // the tag ("retConsReciNFe/dhRecbto"), a value that does not read code 2
    // over the converter's failure with the same name; an nRec that does not
    // read is named "retEnviNFeinfRec/nRec", the root and the path with
    // nothing between them, as it has always been. Then each protNFe child is
    // read (protocolo_nfe::from_xml): a failure there ends the list with the
    // protocols read before it. The tree is kept in any case.
    static lote_autorizacao from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the document's root; a document without root is code 5.
    // Unlike the element's form, any failure gives a default object.
    static lote_autorizacao from_xml(xml::document const& document, core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
