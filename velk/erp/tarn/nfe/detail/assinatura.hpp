#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/element.hpp>

#include <functional>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// What `assinar` of every signable request does around assinar_elemento.

// Erases the first direct child element named Signature of `raiz`; later
// ones, and nodes that are not elements, stay. False when there was none.
bool remover_primeira_assinatura(xml::element& raiz);

// Writes the identifier of the signed element from the request's own fields
// (never from the Id attribute of the tree). A piece without text leaves code
// 9 of the SEFAZ data category, naming the request and the field, and false.
using montar_identificador = std::function<bool(std::string& identificador, core::result::stack& stack)>;

// The frame: drop the first old Signature, make the identifier, then sign
// with the reference "#" and the identifier, the Signature going under
// `raiz` as its last child. A failed identifier ends it unsigned (and without
// the old signature).
void assinar_raiz(xml::element& raiz, montar_identificador const& identificador,
                  cryptography::pkcs12 const& certificado, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::detail
