#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The disablement of a range of document numbers of one series (inutNFe):
// numbers that were skipped and will never be issued are declared so to the
// authority. Unlike the simple queries it is signed, so it keeps its tree:
// from_data writes it once, assinar signs it in place, get_xml gives it.
class VELK_EXPORT inutilizacao {
public:
    inutilizacao();
    inutilizacao(inutilizacao const& other);
    inutilizacao(inutilizacao&& other) noexcept;
    inutilizacao& operator=(inutilizacao const& other);
    inutilizacao& operator=(inutilizacao&& other) noexcept;
    ~inutilizacao();

    // Writes inutNFe (NF-e namespace, attribute versao) with infInut and its
    // Id: "ID", cUF, ano (2 digits), CNPJ (14 digits), mod, the series in 3
    // digits and the two numbers in 9. The tags carry the series and the
    // numbers without zero-fill (series 1 is "1"). What the layout's schema
    // does not admit is refused like a field without text: a year above 99, a
    // CNPJ above 14 digits, a series above 999, a number 0 or above
    // 999999999, a justification not of 15 to 255 characters of the layout's
    // text (no control character, nothing beyond Latin-1, no space at either
    // end). The refusal is code 9 ("inutilizacao" and the field: versao,
    // ambiente, estado, ano, cnpj, modelo, serie, numero_inicial,
    // numero_final, justificativa) on top of the converter's failure, and a
    // default object. The fields are not related to each other: a range that
    // runs backwards goes out as given, for the authority to judge.
    static inutilizacao from_data(versao versao_layout, ambiente tipo_ambiente, std::string const& justificativa,
                                  estado uf, modelo modelo_documento, unsigned int ano, unsigned int serie,
                                  unsigned int numero_inicial, unsigned int numero_final, unsigned long long cnpj,
                                  core::result::stack& stack);

    // Reads an inutNFe (a stored one, to sign or send again) and keeps the
    // element as its tree. Failures of sefaz_data::result_category: code 1
    // for another root ("inutNFe") or a missing tag ("inutNFe/infInut/" and
    // the tag), code 4 without versao ("inutNFe/versao"), and over the
    // converter's failure code 3 for a versao that does not read, code 2 for
    // a tag that does not. Id and xServ are not read: the signature's
    // identifier is made anew from the fields.
    static inutilizacao from_xml(xml::element const& elemento, core::result::stack& stack);

    // Signs infInut: drops the first Signature under inutNFe and appends a new
    // one as its last child, with the reference "#ID..." made from the fields
    // (not read from the tree). A field without text is code 9, and nothing
    // is signed; a failure of the signer leaves an unsigned template in the
    // tree: do not send it.
    void assinar(cryptography::pkcs12 const& certificado, core::result::stack& stack);

    versao get_versao() const;
    ambiente get_ambiente() const;
    std::string get_justificativa() const;
    estado get_estado() const;
    modelo get_modelo() const;
    unsigned int get_ano() const;
    unsigned int get_serie() const;
    unsigned int get_numero_inicial() const;
    unsigned int get_numero_final() const;
    unsigned long long get_cnpj() const;
    // A copy of the tree, signed once assinar has run.
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
