#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The payload of the recipient's answer about a note issued against it
// (events 210200 to 210240): its detEvento, built once by from_data and kept.
class VELK_EXPORT manifestacao_destinatario {
public:
    // In the order of the event types 210200, 210210, 210220 and 210240.
    enum class tipo_manifestacao : int {
        confirmacao_operacao = 0,
        ciencia_operacao = 1,
        desconhecimento_operacao = 2,
        operacao_nao_realizada = 3,
    };

    manifestacao_destinatario();
    manifestacao_destinatario(manifestacao_destinatario const& other);
    manifestacao_destinatario(manifestacao_destinatario&& other) noexcept;
    manifestacao_destinatario& operator=(manifestacao_destinatario const& other);
    manifestacao_destinatario& operator=(manifestacao_destinatario&& other) noexcept;
    ~manifestacao_destinatario();

    // descEvento of the type ("Confirmacao da Operacao", "Ciencia da
    // Operacao", "Desconhecimento da Operacao", "Operacao nao Realizada"),
    // then xJust with the justification when one is given and the type has
    // one in its layout: the unknown operation may say why, the operation not
    // performed must. Confirmation and awareness carry none, and an empty
    // justification is never written. The justification is not kept in the
    // field: get_justificativa is empty after from_data, and only a tree read
    // by from_xml fills it. A type outside the four is a fresh code 8
    // ("Manifestação do destinatário", "Desconhecido").
    static manifestacao_destinatario from_data(tipo_manifestacao tipo, std::string const& justificativa,
                                               core::result::stack& stack);
    // The same without justification.
    static manifestacao_destinatario from_data(tipo_manifestacao tipo, core::result::stack& stack);

    // Reads the xJust of a detEvento when it has one and keeps the element;
    // the type is the caller's (from the event's tpEvento), kept as it came.
    static manifestacao_destinatario from_xml(xml::element const& det_evento, tipo_manifestacao tipo,
                                              core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static manifestacao_destinatario from_xml(xml::document const& documento, tipo_manifestacao tipo,
                                              core::result::stack& stack);

    tipo_manifestacao get_tipo_manifestacao() const;
    core::optional<std::string> get_justificativa() const;
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
