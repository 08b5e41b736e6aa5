#pragma once

#include <string>

namespace velk::test {

// What the independent xmlsec1 tool said.
struct xmlsec_result {
    bool success = false;
    std::string output;  // its standard output and error, for failure messages
};

// `xmlsec1 --verify --id-attr:Id <id_element> ...` on the document, where
// id_element is "<namespace URI>:<local name>" of the element whose Id
// attribute the reference names. With a CA certificate (PEM) the signing
// certificate must chain to it (--trusted-pem); with an empty one the
// certificate is not checked (--insecure).
xmlsec_result xmlsec_verify(std::string const& document, std::string const& id_element,
                            std::string const& trusted_ca_pem);

// `xmlsec1 --sign` of a document that already holds an unsigned Signature
// template, with the PEM key and certificate. The signed document is in
// `signed_document` on success.
xmlsec_result xmlsec_sign(std::string const& template_document, std::string const& id_element,
                          std::string const& private_key_pem, std::string const& certificate_pem,
                          std::string& signed_document);

}  // namespace velk::test
