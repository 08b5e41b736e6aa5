#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::demo {

// The throw-away certificate of the demo's issuer, EMPRESA DEMONSTRACAO LTDA,
// issued by a CA made for the run.
cryptography::pkcs12 make_demo_certificate(core::result::stack& stack);

// The enveloped RSA-SHA1 signature of the NF-e layouts: the template, with
// the reference to `reference_uri` ("#" + Id), is appended as the last child
// of `parent` and computed with the certificate.
void sign_enveloped(xml::element& parent, std::string const& reference_uri, cryptography::pkcs12 const& certificate,
                    core::result::stack& stack);

}  // namespace velk::demo
