#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Every XML signature the library emits: the enveloped profile of the NF-e
// layouts (RSA-SHA1, one reference with the enveloped-signature and Canonical
// XML 1.0 transforms, the X.509 certificate in KeyInfo).
//
// Appends the Signature as the last child of `elemento_pai`, the root of the
// message, and signs the element under it whose Id the reference `uri`
// ("#" and the Id) names. Failures are those of the cryptography library: when
// the template cannot be made the tree is untouched; when signing fails the
// unsigned template stays as the last child.
VELK_EXPORT void assinar_elemento(xml::element& elemento_pai, std::string const& uri,
                                  cryptography::pkcs12 const& certificado, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe
