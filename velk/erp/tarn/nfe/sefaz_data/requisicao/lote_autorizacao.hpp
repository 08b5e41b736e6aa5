#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The authorization batch (enviNFe): documents, each a signed NFe tree, with
// the batch's identifier and whether the authority is asked to answer at once
// (indSinc 1: the protocols come back in the answer) or to give a receipt to
// query later (0). The batch keeps its own copies of the trees; documento_fiscal
// objects are made from them when asked for. Any number of documents may be
// appended; get_xml writes only what the layout admits (1 to 50).
class VELK_EXPORT lote_autorizacao {
public:
    // An empty batch of layout 3.10, identifier 0, synchronous.
    lote_autorizacao();
    lote_autorizacao(lote_autorizacao const& other);
    lote_autorizacao(lote_autorizacao&& other) noexcept;
    lote_autorizacao& operator=(lote_autorizacao const& other);
    lote_autorizacao& operator=(lote_autorizacao&& other) noexcept;
    ~lote_autorizacao();

    unsigned long long get_id() const;
    void set_id(unsigned long long id);
    // Set the version before appending: each document is compared with it
    // when it comes in, and never again.
    versao get_versao() const;
    void set_versao(versao versao_layout);
    bool get_indicador_sincrono() const;
    void set_indicador_sincrono(bool sincrono);

    // Appends a copy of the document's tree, as it stands: sign it first. A
    // document of another version than the batch's is code 6 and is not
    // appended.
    void append_documento_fiscal(documento_fiscal const& documento, core::result::stack& stack);
    // The same for a document read with documento_fiscal::from_xml, whose
    // failures are reported as they are.
    void append_documento_fiscal(xml::document const& documento, core::result::stack& stack);
    // The same for a document generated from the note in the batch's version
    // (documento_fiscal::from_nota_fiscal): unsigned and without QR code, so
    // only for authorities that take such a document, which none does today.
    void append_documento_fiscal(fiscal::nota_fiscal const& nota, core::result::stack& stack);

    // The first document, read from its tree; code 7 when the batch is empty.
    // When it does not read, the stack tells why and a default document
    // comes back.
    documento_fiscal get_primeiro_documento(core::result::stack& stack) const;
    // The first document whose infNFe Id is "NFe" and the key. A document
    // element whose infNFe has no Id stops the search with code 4
    // ("enviNFe/NFe/Id"); a key without text is code 9 ("lote_autorizacao",
    // "chave_acesso"); no match is code 7. Each failure gives a default
    // document.
    documento_fiscal get_documento_fiscal(chave_acesso const& chave, core::result::stack& stack) const;

    // enviNFe, written anew on each call: attribute versao, the NF-e
    // namespace, idLote (decimal, no zero-fill), indSinc, then the NFe trees
    // in order. A version without text, or an identifier above 15 digits, is
    // code 9 ("lote_autorizacao" and versao or id_lote) over the converter's
    // failure; a batch without documents is code 7, one of more than 50
    // documents code 9 ("lote_autorizacao", "documentos"), both fresh. The
    // element is then unfinished and not to be sent.
    xml::element get_xml(core::result::stack& stack) const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
