#include "signature_fixtures.hpp"

#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/cryptography/xml/signer.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

namespace velk::test {

namespace crypto_xml = cryptography::xml;

xml::element nfe_signature_template(std::string const& uri, core::result::stack& stack)
{
    xml::canonicalization_parameters::version_1_0 const parameters;
    crypto_xml::method::canonicalization const canonicalization(parameters);
    crypto_xml::reference reference(crypto_xml::method::digest::from_sha1());
    reference.set_uri(uri);
    reference.add_transform(crypto_xml::method::transform::from_enveloped_signature());
    reference.add_transform(crypto_xml::method::transform::from_canonicalization_method(canonicalization));
    crypto_xml::signed_info info(canonicalization,
                                 crypto_xml::method::signature::from_rsa(cryptography::cryptographic_hash::algorithm::sha1));
    info.add_reference(reference);
    crypto_xml::key_info key;
    key.add_X509();
    return crypto_xml::signature_template(info, key, {}).get_element_template(stack);
}

bool append_and_sign(xml::element& parent, std::string const& uri, cryptography::pkcs12 const& certificate,
                     core::result::stack& stack)
{
    xml::element signature = nfe_signature_template(uri, stack);
    if (stack.has_failed()) {
        return false;
    }
    parent.append_node(std::move(signature));
    crypto_xml::signer const signer(certificate.get_certificate(), certificate.get_evp_private_key());
    return signer.execute(parent, stack);
}

bool remove_first_signature(xml::element& parent)
{
    auto range = parent.get_node_range();
    for (auto position = range.begin(); position != range.end(); ++position) {
        if (position->as_element() != nullptr && position->as_element()->get_name() == "Signature") {
            range.erase(position);
            return true;
        }
    }
    return false;
}

std::string contents_of(xml::element const& root, std::string const& name)
{
    if (root.get_name() == name) {
        return root.get_contents();
    }
    for (auto const& child : root.get_node_range()) {
        if (xml::element const* element = child.as_element()) {
            std::string found = contents_of(*element, name);
            if (!found.empty()) {
                return found;
            }
        }
    }
    return {};
}

}  // namespace velk::test
