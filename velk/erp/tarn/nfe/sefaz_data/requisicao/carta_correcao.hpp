#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The payload of a correction letter (event 110110): its detEvento, built once
// by from_data and kept. The text of the correction goes out as given; the
// authority judges its length.
class VELK_EXPORT carta_correcao {
public:
    carta_correcao();
    carta_correcao(carta_correcao const& other);
    carta_correcao(carta_correcao&& other) noexcept;
    carta_correcao& operator=(carta_correcao const& other);
    carta_correcao& operator=(carta_correcao&& other) noexcept;
    ~carta_correcao();

    // descEvento "Carta de Correcao", xCorrecao, and xCondUso with the fixed
    // conditions of use of the letter, written without accents.
    static carta_correcao from_data(std::string const& correcao, core::result::stack& stack);

    // Reads xCorrecao of a detEvento (code 1 "detEvento/xCorrecao" when it is
    // missing) and keeps the element.
    static carta_correcao from_xml(xml::element const& det_evento, core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static carta_correcao from_xml(xml::document const& documento, core::result::stack& stack);

    std::string get_correcao() const;
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
