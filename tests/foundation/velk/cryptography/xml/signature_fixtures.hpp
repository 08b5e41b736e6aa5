#pragma once

// What the signer tests share: the NF-e signature template, trees to and from
// text, and the places of the signature's values.

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/element.hpp>

#include <filesystem>
#include <string>

namespace velk::test {

// The unsigned Signature of the NF-e profile for the reference uri ("#" + Id).
xml::element nfe_signature_template(std::string const& uri, core::result::stack& stack);

// Appends the template as the last child of the parent and signs it.
bool append_and_sign(xml::element& parent, std::string const& uri, cryptography::pkcs12 const& certificate,
                     core::result::stack& stack);

// Erases the first child element named Signature; false when there is none.
bool remove_first_signature(xml::element& parent);

xml::element parse_element(std::string const& text);
std::string to_text(xml::element const& root);

// Contents of the first element of that local name, searched depth-first.
std::string contents_of(xml::element const& root, std::string const& name);

// The test certificate as a pkcs12 object.
cryptography::pkcs12 test_pkcs12();

// Errors of validating the XML text against a schema file; empty when valid.
std::string schema_errors(std::string const& xml_text, std::filesystem::path const& schema);

}  // namespace velk::test
