#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail {

// What the payloads of the events share: their detEvento and how they are
// read back.

// The version of the event layout, on evento, detEvento and envEvento alike.
inline constexpr char versao_evento[] = "1.00";

// A detEvento with its attribute versao and the descEvento child. It has no
// namespace of its own: it takes the event's when put under infEvento. False
// when the attribute cannot be appended (the XML library's failure).
bool novo_det_evento(xml::element& det_evento, std::string const& descricao, core::result::stack& stack);

// Appends the child `name` with `text` as plain text.
void append_text(xml::element& parent, std::string const& name, std::string const& text);

// The name check of a payload's from_xml: a root not named `expected` is a
// fresh code 1 with that name.
bool root_is(xml::element const& root, char const* expected, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail
