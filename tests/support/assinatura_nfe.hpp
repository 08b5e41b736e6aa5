#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::test {

// The unsigned Signature of the NF-e profile (enveloped, Canonical XML 1.0,
// RSA-SHA1, the certificate in KeyInfo) for the reference uri ("#" + Id).
xml::element nfe_signature_template(std::string const& uri, core::result::stack& stack);

// Appends the template as the last child of the parent and signs it.
bool append_and_sign(xml::element& parent, std::string const& uri, cryptography::pkcs12 const& certificate,
                     core::result::stack& stack);

// Signs an NF-e document as issuers do: the reference names infNFe by its Id,
// and the Signature is the last child of NFe.
bool sign_nfe(xml::document& document, cryptography::pkcs12 const& certificate, core::result::stack& stack);

}  // namespace velk::test
