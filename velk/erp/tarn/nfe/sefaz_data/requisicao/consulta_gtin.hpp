#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/detail/versao_layout_consulta_gtin.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The question to the GTIN catalogue about one barcode (consGTIN).
class VELK_EXPORT consulta_gtin {
public:
    consulta_gtin();
    consulta_gtin(consulta_gtin const& other);
    consulta_gtin(consulta_gtin&& other) noexcept;
    consulta_gtin& operator=(consulta_gtin const& other);
    consulta_gtin& operator=(consulta_gtin&& other) noexcept;
    ~consulta_gtin();

    // The barcode is not validated here: the catalogue judges it.
    static consulta_gtin from_data(std::string const& gtin);

    sefaz_data::detail::versao_layout_consulta_gtin get_versao() const;
    std::string get_gtin() const;
    void set_gtin(std::string const& gtin);

    // consGTIN with the NF-e namespace, then the attribute versao "1.00",
    // then GTIN alone (no tpAmb). A version without text ends it with code 9
    // ("consulta_gtin", "versao_layout") on top of the converter's failure.
    xml::element get_xml(core::result::stack& stack) const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
