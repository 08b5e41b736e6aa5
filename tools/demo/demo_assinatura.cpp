#include "demo_assinatura.hpp"

#include <pki/certificate_authority.hpp>
#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/cryptography/xml/signer.hpp>

namespace velk::demo {

namespace crypto_xml = cryptography::xml;

cryptography::pkcs12 make_demo_certificate(core::result::stack& stack)
{
    tools::pki::certificate_authority const authority("Velk Demo CA");
    std::string const password = "demo";
    core::byte_array const bundle =
        authority.issue_client("EMPRESA DEMONSTRACAO LTDA:12345678000195").to_pkcs12(password);
    return cryptography::pkcs12::from_byte_array(bundle, password, stack);
}

void sign_enveloped(xml::element& parent, std::string const& reference_uri, cryptography::pkcs12 const& certificate,
                    core::result::stack& stack)
{
    xml::canonicalization_parameters::version_1_0 const parameters;
    crypto_xml::method::canonicalization const canonicalization(parameters);
    crypto_xml::reference reference(crypto_xml::method::digest::from_sha1());
    reference.set_uri(reference_uri);
    reference.add_transform(crypto_xml::method::transform::from_enveloped_signature());
    reference.add_transform(crypto_xml::method::transform::from_canonicalization_method(canonicalization));
    crypto_xml::signed_info info(
        canonicalization, crypto_xml::method::signature::from_rsa(cryptography::cryptographic_hash::algorithm::sha1));
    info.add_reference(reference);
    crypto_xml::key_info key;
    key.add_X509();
    xml::element signature = crypto_xml::signature_template(info, key, {}).get_element_template(stack);
    if (stack.has_failed()) {
        return;
    }
    parent.append_node(std::move(signature));
    crypto_xml::signer(certificate.get_certificate(), certificate.get_evp_private_key()).execute(parent, stack);
}

}  // namespace velk::demo
