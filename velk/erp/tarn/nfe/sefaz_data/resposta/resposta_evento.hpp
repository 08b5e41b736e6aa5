#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/retorno_evento.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The answer to one event, in the class of its family.
using resposta_evento = core::variant<cancelamento, carta_correcao, epec_nfe, manifestacao_destinatario>;

// Reads a retEvento into the class its tpEvento names. Here tpEvento is
// required: code 1 "retEvento/infEvento/tpEvento" when it is missing, code 2
// with the same name when it is no event type; a root of another name is code
// 1 "retEvento". On any failure the result holds a default cancelamento and
// the stack tells why.
VELK_EXPORT resposta_evento resposta_evento_from_xml(xml::element const& root, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
