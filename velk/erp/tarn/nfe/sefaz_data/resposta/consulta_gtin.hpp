#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The GTIN catalogue's answer about one barcode: the result wrapper
// nfeResultMsg with retConsGTIN inside, kept whole. Status 9490 is a barcode
// found, with the product's description, NCM and CEST.
class VELK_EXPORT consulta_gtin {
public:
    consulta_gtin();
    consulta_gtin(consulta_gtin const& other);
    consulta_gtin(consulta_gtin&& other) noexcept;
    consulta_gtin& operator=(consulta_gtin const& other);
    consulta_gtin& operator=(consulta_gtin&& other) noexcept;
    ~consulta_gtin();

    // Under retConsGTIN: cStat, verAplic, xMotivo, dhResp (required), GTIN,
    // tpGTIN, xProd, NCM (optional).
    unsigned int get_codigo_status() const;
    std::string get_versao_aplicativo() const;
    std::string get_motivo() const;
    core::datetime get_data_recebimento() const;
    core::optional<std::string> get_gtin() const;
    core::optional<unsigned int> get_tipo_gtin() const;
    core::optional<std::string> get_desc_produto() const;
    core::optional<unsigned int> get_ncm() const;
    // The CEST elements that stand directly under nfeResultMsg, in order.
    // Those inside retConsGTIN are not collected: this reading has always
    // looked one level up, and callers depend on what it gave.
    std::vector<unsigned int> get_cest() const;
    // A copy of the whole nfeResultMsg, unchanged; an element with an empty
    // name when nothing was read.
    xml::element get_xml() const;

    // Reads nfeResultMsg; another root is code 1 ("nfeResultMsg") and keeps no
    // tree. Its first child must be the element retConsGTIN, else code 1
    // ("nfeResultMsg/retConsGTIN"). A missing required tag is code 1, a value
    // that does not read code 2 over the converter's failure, named
    // "nfeResultMsg/retConsGTIN/" and the tag (CEST too). Reading stops at the
    // first failure and keeps what was read.
    static consulta_gtin from_xml(xml::element const& root, core::result::stack& stack);
    // The same for the document's root; a document without root is code 5.
    static consulta_gtin from_xml(xml::document const& document, core::result::stack& stack);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
