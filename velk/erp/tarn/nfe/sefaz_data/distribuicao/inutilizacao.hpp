#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao {

// A disablement with the authority's answer: the proof that a range of
// numbers was never used. The archive is written ProcInutNFe, the name the
// layout's schema gives it; one stored as procInutNFe reads as well. Unlike
// the other archives it keeps the request and the answer as objects beside
// its tree.
class VELK_EXPORT inutilizacao {
public:
    // An empty ProcInutNFe with default parts.
    inutilizacao();
    inutilizacao(inutilizacao const& other);
    inutilizacao(inutilizacao&& other) noexcept;
    inutilizacao& operator=(inutilizacao const& other);
    inutilizacao& operator=(inutilizacao&& other) noexcept;
    ~inutilizacao();

    // ProcInutNFe in the NF-e namespace, versao the request's, then copies of
    // the signed inutNFe and of the retInutNFe, unchanged. A version without
    // text is code 9 ("inutilizacao", "versao") over the converter's
    // failure; a failure of the XML library stays as it came. Either gives an
    // empty object.
    static inutilizacao from_data(requisicao::inutilizacao const& requisicao,
                                  resposta::inutilizacao const& resposta, core::result::stack& stack);
    // Reads the inutNFe and the retInutNFe, stopping at the first failure of
    // their readers, and pairs them as from_data.
    static inutilizacao from_xml(xml::element const& inutilizacao, xml::element const& resposta,
                                 core::result::stack& stack);
    // The same from a stored ProcInutNFe or procInutNFe (another root is code 1
    // "procInutNFe", a missing child code 1 "procInutNFe/inutNFe" or
    // "procInutNFe/retInutNFe"); the tree kept is then the one given, as it
    // came, its own attributes included.
    static inutilizacao from_xml(xml::element const& proc_inut, core::result::stack& stack);

    requisicao::inutilizacao get_requisicao() const;
    resposta::inutilizacao get_resposta() const;
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao
