#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The authority's answer to a disablement (retInutNFe). Status 102 means the
// range is disabled and nProt is its protocol; a rejection may leave out every
// echo of the request, which is why those fields are optional.
class VELK_EXPORT inutilizacao {
public:
    inutilizacao();
    inutilizacao(inutilizacao const& other);
    inutilizacao(inutilizacao&& other) noexcept;
    inutilizacao& operator=(inutilizacao const& other);
    inutilizacao& operator=(inutilizacao&& other) noexcept;
    ~inutilizacao();

    // The attribute versao and, under infInut, cStat, xMotivo, tpAmb, cUF
    // (required) and verAplic (empty when absent).
    versao get_versao() const;
    ambiente get_ambiente() const;
    unsigned int get_codigo_status() const;
    std::string get_motivo() const;
    estado get_estado() const;
    std::string get_versao_aplicativo() const;
    // The range as the authority echoes it, its time and protocol.
    core::optional<unsigned int> get_ano() const;
    core::optional<unsigned long long> get_cnpj() const;
    core::optional<modelo> get_modelo() const;
    core::optional<unsigned int> get_serie() const;
    core::optional<unsigned int> get_numero_inicial() const;
    core::optional<unsigned int> get_numero_final() const;
    core::optional<core::datetime> get_data_recebimento() const;
    core::optional<unsigned long long> get_protocolo() const;
    // A copy of the element read, unchanged, for archiving; an element with an
    // empty name when nothing was read.
    xml::element get_xml() const;

    // Reads retInutNFe of any version. Failures of sefaz_data::result_category:
    // code 1 for another root ("retInutNFe") or a missing required tag
    // ("retInutNFe/infInut/" and the tag); code 4 without versao
    // ("retInutNFe/versao"); over the converter's failure, code 3 for a versao
    // that does not read and code 2 for a tag that does not, named
    // "retInutNFe/infInut/" and the tag for cStat and cUF,
    // "retInutNFe/infInut/tpAMb" for tpAmb, and "infInut/" and the tag, with
    // no root in front, for the optional tags. Reading stops at the first
    // failure; the tree is kept in any case.
    static inutilizacao from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the document's root; a document without root is code 5.
    static inutilizacao from_xml(xml::document const& document, core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
