#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao {

// A document with the authority's protocol (nfeProc): what the issuer keeps
// and hands to the recipient, since a document is valid only with it. The
// pairing is structural: nothing checks that the protocol is about this
// document, nor that it authorizes it; the caller knows the two belong
// together. The object is its tree; the parts are read from it on request.
class VELK_EXPORT autorizacao {
public:
    // An empty nfeProc.
    autorizacao();

    // nfeProc in the NF-e namespace, versao the document's, then copies of the
    // document's tree and of the protocol's protNFe, unchanged: the signature
    // stays valid. A version without text is code 9 ("autorizacao",
    // "versao") over the converter's failure; a failure of the XML library
    // stays as it came. Either gives an empty object.
    static autorizacao from_data(requisicao::documento_fiscal const& documento,
                                 resposta::protocolo_nfe const& protocolo, core::result::stack& stack);
    // Reads the document (NFe) and the protocol (protNFe), stopping at the
    // first failure of their readers, and pairs them as from_data: the tree
    // is made anew, document first.
    static autorizacao from_xml(xml::element const& nfe, xml::element const& protocolo, core::result::stack& stack);
    // The same from a stored nfeProc: another root is code 1 "nfeProc", a
    // missing child code 1 "nfeProc/NFe" or "nfeProc/protNFe".
    static autorizacao from_xml(xml::element const& nfe_proc, core::result::stack& stack);

    // The parts read from the tree. A missing child is code 1 "nfeProc/NFe"
    // (for the protocol as well); after any failure the part is an empty one.
    requisicao::documento_fiscal get_requisicao(core::result::stack& stack) const;
    resposta::protocolo_nfe get_resposta(core::result::stack& stack) const;
    xml::element get_xml() const;

private:
    xml::element xml_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao
