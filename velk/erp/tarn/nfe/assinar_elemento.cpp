#include <velk/erp/tarn/nfe/assinar_elemento.hpp>

#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/cryptography/xml/signer.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

namespace signature = cryptography::xml;

// The reference: enveloped-signature first, canonicalization next; the order
// is part of the layouts' profile.
signature::signature_template make_template(std::string const& uri)
{
    xml::canonicalization_parameters::version_1_0 const parameters;
    signature::method::canonicalization const canonicalization(parameters);
    signature::reference reference(signature::method::digest::from_sha1());
    reference.set_uri(uri);
    reference.add_transform(signature::method::transform::from_enveloped_signature());
    reference.add_transform(signature::method::transform::from_canonicalization_method(canonicalization));

    signature::signed_info info(canonicalization,
                                signature::method::signature::from_rsa(cryptography::cryptographic_hash::algorithm::sha1));
    info.add_reference(reference);

    signature::key_info key;
    key.add_X509();
    return signature::signature_template(info, key, {});
}

}  // namespace

void assinar_elemento(xml::element& elemento_pai, std::string const& uri,
                      cryptography::pkcs12 const& certificado, core::result::stack& stack)
{
    xml::element element_template = make_template(uri).get_element_template(stack);
    if (stack.has_failed()) {
        return;
    }
    elemento_pai.append_node(std::move(element_template));
    signature::signer const signer(certificado.get_certificate(), certificado.get_evp_private_key());
    signer.execute(elemento_pai, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe
