#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/mensagem_sefaz.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The authority's verdict on one document (protNFe): status 100 or 150 with
// the protocol number authorizes it, 110 denies it, any other status rejects
// it and carries no protocol. The element is what goes beside the document
// into its archive (nfeProc), so it is kept exactly as received.
class VELK_EXPORT protocolo_nfe {
public:
    protocolo_nfe();
    protocolo_nfe(protocolo_nfe const& other);
    protocolo_nfe(protocolo_nfe&& other) noexcept;
    protocolo_nfe& operator=(protocolo_nfe const& other);
    protocolo_nfe& operator=(protocolo_nfe&& other) noexcept;
    ~protocolo_nfe();

    // Under infProt: cStat, xMotivo, verAplic, dhRecbto, chNFe (required),
    // nProt (optional), cMsg and xMsg (the authority's message, optional).
    unsigned int get_codigo_status() const;
    std::string get_motivo() const;
    std::string get_versao_aplicativo() const;
    core::datetime get_data_recebimento() const;
    chave_acesso get_chave_acesso() const;
    core::optional<unsigned long long> get_numero_protocolo() const;
    core::optional<mensagem_sefaz> get_mensagem_sefaz() const;
    // A copy of the protNFe element, unchanged; an element with an empty name
    // when nothing was read.
    xml::element get_xml() const;

    // Reads protNFe, keeping the element before any check. Failures of
    // sefaz_data::result_category: code 1 for another root ("protNFe") or a
    // missing required tag ("protNFe/infProt/" and the tag), code 4 without
    // versao ("protNFe/versao"), code 2 over the converter's failure for a
    // tag that does not read. A versao that does not read leaves the
    // converter's failure alone. A protocol of layout 2.00 is not read at all,
    // without failure: its fields stay at their defaults. The message: cMsg
    // without xMsg is code 1 ("protNFe/infProt/xMsg"), xMsg alone gives a
    // message without code.
    static protocolo_nfe from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the document's root; a document without root is code 5.
    static protocolo_nfe from_xml(xml::document const& document, core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
