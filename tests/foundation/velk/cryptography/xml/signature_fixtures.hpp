#pragma once

// What the signer tests share: the NF-e signature template and the places of
// the signature's values.

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::test {

// The unsigned Signature of the NF-e profile for the reference uri ("#" + Id).
xml::element nfe_signature_template(std::string const& uri, core::result::stack& stack);

// Appends the template as the last child of the parent and signs it.
bool append_and_sign(xml::element& parent, std::string const& uri, cryptography::pkcs12 const& certificate,
                     core::result::stack& stack);

// Erases the first child element named Signature; false when there is none.
bool remove_first_signature(xml::element& parent);

// Contents of the first element of that local name, searched depth-first.
std::string contents_of(xml::element const& root, std::string const& name);

}  // namespace velk::test
