#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/variant.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/detail/tipo_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/cancelamento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/carta_correcao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/epec_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/manifestacao_destinatario.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <variant>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// One event about a note, as its evento element: the frame every event type
// shares (infEvento with the note's key, the type, the sequence number) around
// the payload's detEvento. The tree is built once by from_data and is the
// event: assinar signs it in place, and get_xml hands it out.
class VELK_EXPORT evento {
public:
    // The payload: none in a default event, else the one it was made from.
    using informacoes =
        core::variant<std::monostate, cancelamento, carta_correcao, epec_nfe, manifestacao_destinatario>;

    evento();
    evento(evento const& other);
    evento(evento&& other) noexcept;
    evento& operator=(evento const& other);
    evento& operator=(evento&& other) noexcept;
    ~evento();

    // The events of each payload. Type, sequence number and cOrgao follow
    // from it: a cancellation (110111, or 110112 by substitution) and a
    // correction letter (110110) go to the state of the key; EPEC (110140)
    // and the recipient's manifestations (210200 to 210240) to the national
    // environment, 91. Only a correction letter has a sequence number other
    // than 1: each new letter about a note replaces the former one and counts
    // up from 1.
    //
    // The frame: evento versao "1.00" in the NF-e namespace, infEvento with
    // the Id "ID", type, key and the sequence in two digits, then cOrgao,
    // tpAmb, CNPJ (the issuer's, from the key, for every type), chNFe,
    // dhEvento, tpEvento, nSeqEvento, verEvento "1.00" and the detEvento. A
    // value without text is code 9 ("evento" and "tipo_evento",
    // "chave_acesso", "sequencia", "orgao", "ambiente" or "dh_evento") on top
    // of the converter's failure: a sequence above 99 has no two digits. A
    // manifestation of a type outside the four is a fresh code 8. Any failure
    // gives a default event.
    static evento from_data(cancelamento const& payload, chave_acesso const& chave, ambiente tipo_ambiente,
                            core::datetime const& data_hora_evento, core::result::stack& stack);
    static evento from_data(carta_correcao const& payload, chave_acesso const& chave, ambiente tipo_ambiente,
                            core::datetime const& data_hora_evento, unsigned int sequencia,
                            core::result::stack& stack);
    static evento from_data(epec_nfe const& payload, chave_acesso const& chave, ambiente tipo_ambiente,
                            core::datetime const& data_hora_evento, core::result::stack& stack);
    static evento from_data(manifestacao_destinatario const& payload, chave_acesso const& chave,
                            ambiente tipo_ambiente, core::datetime const& data_hora_evento,
                            core::result::stack& stack);

    // Reads an evento: tpAmb, chNFe, dhEvento, tpEvento, nSeqEvento and the
    // payload of the type from detEvento, and keeps the element whole (its
    // signature included). A root of another name is code 1 "evento"; a
    // missing tag code 1 "evento/infEvento/" and the tag; a value that does
    // not convert code 2 with its name and text, but a key that does not is
    // code 3 named "evento/infEvento/Id". A payload's failure stays as the
    // payload reported it. Any failure gives a default event.
    static evento from_xml(xml::element const& elemento, core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static evento from_xml(xml::document const& documento, core::result::stack& stack);

    // Signs the tree in place: drops the first Signature child of evento and
    // appends a new enveloped one as its last child, referring to the Id as
    // the fields make it (never as the tree's attribute says). An Id that
    // cannot be made is code 9 as in from_data, and nothing is signed. On a
    // failure of the signer the tree may hold an unsigned template: do not
    // send it.
    void assinar(cryptography::pkcs12 const& certificado, core::result::stack& stack);

    chave_acesso get_chave_acesso() const;
    ambiente get_ambiente() const;
    core::datetime get_data_hora_evento() const;
    nfe::detail::tipo_evento get_tipo_evento() const;
    std::uint32_t get_sequencia() const;
    informacoes get_informacoes_evento() const;
    // A copy of the tree as it stands.
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
