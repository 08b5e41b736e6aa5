#include <velk/erp/tarn/nfe/assinar_elemento.hpp>

#include <velk/core/optional.hpp>
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

// The template differs from one document to the next only by the URI of its
// reference: it is built once, with a stand-in URI, and copied for each
// signature. Null if it could not be built; each signature then builds its own
// and reports why.
xml::element const* shared_template()
{
    static core::optional<xml::element> const model = []() -> core::optional<xml::element> {
        core::result::stack stack;
        xml::element built = make_template("#").get_element_template(stack);
        if (stack.has_failed()) {
            return {};
        }
        return built;
    }();
    return model.has_value() ? &*model : nullptr;
}

// The shared template with the reference's URI, or null when there is none
// to copy.
core::optional<xml::element> template_for(std::string const& uri)
{
    xml::element const* const model = shared_template();
    if (model == nullptr || uri.empty()) {
        return {};
    }
    xml::element copy = *model;
    xml::element* const signed_info = copy.find_child("SignedInfo");
    xml::element* const reference = signed_info == nullptr ? nullptr : signed_info->find_child("Reference");
    xml::attribute* const uri_attribute = reference == nullptr ? nullptr : reference->find_attribute("", "URI");
    if (uri_attribute == nullptr) {
        return {};
    }
    uri_attribute->set_value(uri);
    return copy;
}

}  // namespace

void assinar_elemento(xml::element& elemento_pai, std::string const& uri,
                      cryptography::pkcs12 const& certificado, core::result::stack& stack)
{
    if (core::optional<xml::element> copied = template_for(uri)) {
        elemento_pai.append_node(std::move(*copied));
    } else {
        xml::element element_template = make_template(uri).get_element_template(stack);
        if (stack.has_failed()) {
            return;
        }
        elemento_pai.append_node(std::move(element_template));
    }
    signature::signer const signer(certificado.get_certificate(), certificado.get_evp_private_key());
    signer.execute(elemento_pai, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe
