#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// One NF-e or NFC-e as its XML tree (the NFe element), with the values the
// rest of the system needs read out of it once. The tree is the document: the
// values are a cache of what from_xml found, and nothing is ever regenerated
// from them. Operations that add to the tree (the QR code supplement, the
// signature) live in source files of their own and share the hidden data
// through requisicao/detail/documento_fiscal_dados.hpp.
class documento_fiscal {
public:
    documento_fiscal();
    // Copies carry the tree and the place of infNFe in it.
    documento_fiscal(documento_fiscal const& other);
    documento_fiscal(documento_fiscal&& other) noexcept;
    documento_fiscal& operator=(documento_fiscal const& other);
    documento_fiscal& operator=(documento_fiscal&& other) noexcept;
    ~documento_fiscal();

    // Keeps a copy of the element and reads the values. Fresh reports: code 1
    // for a root other than NFe or a missing required element ("NFe/" and the
    // path), code 4 for a missing attribute Id or versao of infNFe, code 3
    // for an Id not of 47 characters; chained on the converter's failure:
    // code 3 for a key that does not read (named "NFE/infNFe/Id", the value
    // without its first three characters) or a versao that does not, code 2
    // for a value that does not; code 2 "NFe/infNFe/det" with their number
    // for more items than the layout's 990. A document of layout 2.00 is read no further
    // than its key and version. After a failure the object is not to be used.
    static documento_fiscal from_xml(xml::element const& elemento, core::result::stack& stack);
    // The same for the root of a document; a document without root is code 5.
    static documento_fiscal from_xml(xml::document const& documento, core::result::stack& stack);
    // The same, taking the tree instead of copying it: for a document just
    // generated, whose tree nobody else needs.
    static documento_fiscal from_xml(xml::element&& elemento, core::result::stack& stack);
    static documento_fiscal from_xml(xml::document&& documento, core::result::stack& stack);

    // Generates the document of a note: the builder of the layout checks and
    // maps the model into a tree, the writer makes the XML, and from_xml reads
    // it back, so a generated document passes the same checks as one read from
    // disk. Layouts 4.00 and 3.10; any other version is code 6. A builder failure
    // (processar_nota_result_category) leaves its report and a default object.
    static documento_fiscal from_nota_fiscal(fiscal::nota_fiscal const& nota, versao versao_layout,
                                             core::result::stack& stack);

    // Signs the tree in place: drops the first Signature child of NFe, and
    // appends a new enveloped one as the last child, referring to "#NFe" and
    // the access key as the fields hold it (never as the Id attribute says: a
    // tree whose Id differs fails in the signer). On failure the stack tells,
    // and the tree may hold an unsigned template: do not send it.
    void assinar(cryptography::pkcs12 const& certificado, core::result::stack& stack);

    // The consumer QR code of an NFC-e, before signing: puts a qrCode (a CDATA
    // section with the address of obter_url_qrcode) first in infNFeSupl and
    // the urlChave of informacoes last, each in place of any former one, and
    // keeps them as get_qrcode_value and get_url_chave: the layout has no QR
    // code without its urlChave. infNFeSupl is made right after infNFe when
    // the tree has none; it stays even when the QR code then fails. On
    // failure (obter_url_qrcode's, or code 8 with "url_chave" for an absent
    // urlChave or one no CDATA section can carry) the values are unchanged. A
    // tree that already has a qrCode keeps its text, whatever the token, CSC
    // or page: the QR code of a document is made once. The CSC and its token
    // are used for this call only and not kept.
    void gerar_qrcode(informacoes_adicionais const& informacoes, std::string const& id_token, std::string const& csc,
                      core::result::stack& stack);
    // The urlChave of infNFeSupl alone: any former one goes, and the caller's
    // text (a CDATA section) comes last in infNFeSupl, which is made as above.
    // An absent url_chave leaves none, and an infNFeSupl that may be empty.
    // Having no stack, it checks nothing: gerar_qrcode writes and checks the
    // urlChave itself, and this only replaces it afterwards.
    void adicionar_url_chave(informacoes_adicionais const& informacoes);

    chave_acesso get_chave_acesso() const;
    versao get_versao() const;
    ambiente get_ambiente() const;
    modelo get_modelo() const;
    estado get_estado() const;
    core::optional<std::string> get_qrcode_value() const;
    core::optional<std::string> get_url_chave() const;
    // The DigestValue of the signature when the tree has one; else the
    // SHA-1 of the canonical infNFe in Base64, as the signature will hold it
    // (the QR code needs it before signing). Every tree read from text or
    // written by this library has one; it is empty only for a tree made in
    // memory that document::save refuses as well (a name that is no XML
    // name, a namespace URI without a scheme), which signing then refuses on
    // the stack. Without infNFe (a default object) the process ends: asking
    // is a defect of the caller.
    std::string get_digest_value() const;
    core::datetime get_data_hora_emissao() const;
    core::optional<std::string> get_email_destinatario() const;
    std::uint32_t get_serie() const;
    std::uint32_t get_codigo_numerico() const;
    std::uint32_t get_numero_nota_fiscal() const;
    // Amounts exactly as written in the XML.
    std::string get_valor_total() const;
    std::string get_valor_icms() const;
    // CPF, else CNPJ, else idEstrangeiro of dest.
    core::optional<std::string> get_identificador_destinatario() const;

    // A copy of the tree as it stands.
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
