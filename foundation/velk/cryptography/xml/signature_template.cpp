#include <velk/cryptography/xml/signature_template.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/identifiers.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

namespace {

// An element of the template with the Algorithm attribute.
velk::xml::element method_element(char const* name, std::string const& algorithm, core::result::stack& stack)
{
    velk::xml::element element(name);
    element.append_attribute(velk::xml::attribute("Algorithm", algorithm), stack);
    return element;
}

velk::xml::element reference_element(reference const& value, core::result::stack& stack)
{
    velk::xml::element element("Reference");
    if (!value.get_uri().empty()) {
        element.append_attribute(velk::xml::attribute("URI", value.get_uri()), stack);
    }
    if (!value.get_transforms().empty()) {
        velk::xml::element transforms("Transforms");
        for (auto const& transform : value.get_transforms()) {
            transforms.append_node(method_element("Transform", transform.get_algorithm_uri(), stack));
        }
        element.append_node(std::move(transforms));
    }
    element.append_node(method_element("DigestMethod", detail::digest_uri(value.get_digest().get_algorithm()), stack));
    element.append_node(velk::xml::element("DigestValue"));
    return element;
}

velk::xml::element object_element(object const& value, core::result::stack& stack)
{
    velk::xml::element element("Object");
    if (!value.get_id().empty()) {
        element.append_attribute(velk::xml::attribute("Id", value.get_id()), stack);
    }
    for (auto const& content : value.get_contents()) {
        element.append_node(content);
    }
    return element;
}

// The first algorithm of the template that has no identifier, if any.
core::optional<cryptographic_hash::algorithm> algorithm_without_identifier(signed_info const& info)
{
    if (detail::rsa_signature_uri(info.get_signature().get_hash_algorithm()) == nullptr) {
        return info.get_signature().get_hash_algorithm();
    }
    for (auto const& value : info.get_references()) {
        if (detail::digest_uri(value.get_digest().get_algorithm()) == nullptr) {
            return value.get_digest().get_algorithm();
        }
    }
    return {};
}

}  // namespace

signature_template::signature_template(signed_info const& info, core::optional<key_info> const& key,
                                       std::vector<object> const& objects)
    : info_(info), key_(key), objects_(objects)
{
}

velk::xml::element signature_template::get_element_template(core::result::stack& stack) const
{
    if (info_.get_references().empty()) {
        core::result::fresh<cryptography_result_category::incomplete_template>(stack, "Reference");
        return velk::xml::element();
    }
    if (key_.has_value() && !key_->has_X509()) {
        core::result::fresh<cryptography_result_category::incomplete_template>(stack, "X509Data");
        return velk::xml::element();
    }
    if (auto const algorithm = algorithm_without_identifier(info_)) {
        core::result::fresh<cryptography_result_category::unsupported_algorithm>(
            stack, cryptographic_hash::get_name(*algorithm));
        return velk::xml::element();
    }

    core::result::stack local;
    velk::xml::element signature("Signature");
    signature.append_namespace(velk::xml::namespace_id("", detail::signature_namespace), local);

    velk::xml::element signed_info_element("SignedInfo");
    signed_info_element.append_node(
        method_element("CanonicalizationMethod", info_.get_canonicalization().get_algorithm_uri(), local));
    signed_info_element.append_node(method_element(
        "SignatureMethod", detail::rsa_signature_uri(info_.get_signature().get_hash_algorithm()), local));
    for (auto const& value : info_.get_references()) {
        signed_info_element.append_node(reference_element(value, local));
    }
    signature.append_node(std::move(signed_info_element));
    signature.append_node(velk::xml::element("SignatureValue"));

    if (key_.has_value()) {
        velk::xml::element x509_data("X509Data");
        x509_data.append_node(velk::xml::element("X509Certificate"));
        velk::xml::element key_info_element("KeyInfo");
        key_info_element.append_node(std::move(x509_data));
        signature.append_node(std::move(key_info_element));
    }
    for (auto const& value : objects_) {
        signature.append_node(object_element(value, local));
    }
    if (local.has_failed()) {
        stack = std::move(local);
        return velk::xml::element();
    }
    return signature;
}

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
