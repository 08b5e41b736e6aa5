#include <velk/cryptography/xml/signer.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/canonical_serializer.hpp>
#include <velk/cryptography/xml/detail/identifiers.hpp>
#include <velk/cryptography/xml/detail/subtree_digest.hpp>
#include <velk/cryptography/xml/detail/namespace_scope.hpp>
#include <velk/xml/node.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

namespace {

using category = cryptography_result_category;
using velk::xml::element;

// --- reading the template ----------------------------------------------------

std::vector<element const*> children(element const& parent, char const* name)
{
    std::vector<element const*> found;
    for (auto const& child : parent.get_node_range()) {
        element const* value = child.as_element();
        if (value != nullptr && value->get_name() == name) {
            found.push_back(value);
        }
    }
    return found;
}

// The value of an attribute without namespace, in the tree; null when absent.
std::string const* attribute_value(element const& value, char const* name)
{
    velk::xml::attribute const* found = value.find_attribute("", name);
    return found == nullptr ? nullptr : &found->get_value();
}

// The Algorithm of a method element: code 12 when the element or the
// attribute is missing.
std::string const* algorithm_of(element const& parent, char const* name, core::result::stack& stack)
{
    element const* method = parent.find_child(name);
    std::string const* algorithm = method == nullptr ? nullptr : attribute_value(*method, "Algorithm");
    if (algorithm == nullptr) {
        core::result::fresh<category::incomplete_template>(stack, name);
    }
    return algorithm;
}

// One Reference of SignedInfo and what computing its digest takes.
struct reference_work {
    std::string uri;
    cryptographic_hash::algorithm algorithm = cryptographic_hash::algorithm::sha1;
    bool enveloped = false;
    bool with_comments = false;
    std::string value;  // Base64 digest, once computed
};

bool read_transforms(element const& reference, reference_work& work, core::result::stack& stack)
{
    element const* transforms = reference.find_child("Transforms");
    if (transforms == nullptr) {
        return true;
    }
    for (element const* transform : children(*transforms, "Transform")) {
        std::string const* const algorithm = attribute_value(*transform, "Algorithm");
        if (algorithm == nullptr) {
            core::result::fresh<category::incomplete_template>(stack, "Transform");
            return false;
        }
        if (*algorithm == detail::enveloped_signature_uri) {
            work.enveloped = true;
        } else if (auto const with_comments = detail::canonicalization_from_uri(*algorithm)) {
            work.with_comments = *with_comments;
        } else {
            core::result::fresh<category::unsupported_algorithm>(stack, *algorithm);
            return false;
        }
    }
    return true;
}

bool read_reference(element const& reference, reference_work& work, core::result::stack& stack)
{
    std::string const* const uri = attribute_value(reference, "URI");
    work.uri = uri == nullptr ? std::string() : *uri;
    if (!read_transforms(reference, work, stack)) {
        return false;
    }
    std::string const* const digest_method = algorithm_of(reference, "DigestMethod", stack);
    if (digest_method == nullptr) {
        return false;
    }
    auto const algorithm = detail::digest_from_uri(*digest_method);
    if (!algorithm.has_value()) {
        core::result::fresh<category::unsupported_algorithm>(stack, *digest_method);
        return false;
    }
    work.algorithm = *algorithm;
    if (reference.find_child("DigestValue") == nullptr) {
        core::result::fresh<category::incomplete_template>(stack, "DigestValue");
        return false;
    }
    return true;
}

// The namespace the element is in once the tree is saved: its own, or what
// its prefix names where it stands.
std::string resolved_namespace(std::span<element const* const> path)
{
    detail::namespace_scope scope;
    for (element const* step : path) {
        scope.enter(*step);
    }
    std::string const& name = path.back()->get_qualified_name();
    std::size_t const colon = name.find(':');
    auto const* found = scope.find(colon == std::string::npos ? std::string_view() : std::string_view(name).substr(0, colon));
    return found == nullptr ? std::string() : std::string(found->uri);
}

// --- the referenced element --------------------------------------------------

// An element whose Id a reference names, with its ancestors from the root of
// the signed tree, outermost first.
struct located {
    element const* target = nullptr;
    std::vector<element const*> ancestors;
};

// The attributes Id of an element that hold id.
std::size_t ids_of(element const& value, std::string_view id)
{
    std::size_t count = 0;
    for (velk::xml::attribute const& attribute : value.get_attributes()) {
        count += attribute.get_name() == "Id" && attribute.get_value() == id ? 1 : 0;
    }
    return count;
}

// Counts the Ids equal to id from `current` down, in document order; the
// first element found becomes `first`, with its ancestors. With `around_first`
// the subtree of that first element is not walked: the canonical walk of the
// digest counts there instead.
void collect_by_id(element const& current, std::string_view id, bool around_first,
                   std::vector<element const*>& path, located& first, std::size_t& count)
{
    if (std::size_t const own = ids_of(current, id); own != 0) {
        if (count == 0) {
            first = {&current, path};
        }
        count += own;
        if (around_first && first.target == &current) {
            return;
        }
    }
    path.push_back(&current);
    for (velk::xml::node const& child : current.get_node_range()) {
        if (element const* nested = child.as_element()) {
            collect_by_id(*nested, id, around_first, path, first, count);
        }
    }
    path.pop_back();
}

// The element a reference "#id" names, when it is the one element whose Id
// is id. With `around_target` the Ids under the element found are not
// counted yet: the caller answers for them.
bool resolve(element const& root, std::string const& uri, bool around_target, located& target,
             core::result::stack& stack)
{
    std::size_t count = 0;
    if (uri.size() >= 2 && uri.front() == '#') {
        std::vector<element const*> path;
        collect_by_id(root, std::string_view(uri).substr(1), around_target, path, target, count);
    }
    if (count == 0) {
        core::result::fresh<category::reference_not_found>(stack, uri);
        return false;
    }
    if (count > 1) {
        core::result::fresh<category::ambiguous_reference>(stack, uri);
        return false;
    }
    return true;
}

bool is_within(located const& place, element const* candidate)
{
    return place.target == candidate ||
           std::find(place.ancestors.begin(), place.ancestors.end(), candidate) != place.ancestors.end();
}

// Canonical XML 1.0 of the referenced element in its context, hashed. With
// the enveloped-signature transform the Signature being computed is left out;
// a reference into that Signature digests nothing.
//
// The tree is walked for the Id around the referenced element only; the Ids
// under it are counted by the canonical walk itself, which visits that whole
// subtree but for the Signature left out, counted apart. The failures are
// those of a full walk first: when the canonical walk fails, a full walk
// tells whether the reference was ambiguous all along.
bool digest_reference(element const& root, element const& signature, detail::canonical_serializer& serializer,
                      reference_work& work, core::result::stack& stack)
{
    located target;
    if (!resolve(root, work.uri, true, target, stack)) {
        return false;
    }
    core::byte_array digest;
    if (work.enveloped && is_within(target, &signature)) {
        // A reference into the Signature being computed digests nothing; it
        // is rare enough to be resolved by a full walk.
        if (!resolve(root, work.uri, false, target, stack)) {
            return false;
        }
        cryptographic_hash const hash = cryptographic_hash::from_algorithm(work.algorithm, stack);
        if (stack.has_failed()) {
            return false;
        }
        digest = hash.finish(stack);
    } else {
        std::string_view const id = std::string_view(work.uri).substr(1);
        element const* const excluded = work.enveloped ? &signature : nullptr;
        // The Signature is a child of root: under the target only when the
        // target is root.
        std::size_t hidden = 0;
        if (excluded != nullptr && target.target == &root) {
            std::vector<element const*> path;
            located ignored;
            collect_by_id(*excluded, id, false, path, ignored, hidden);
        }
        digest = detail::digest_subtree(target.ancestors, *target.target, excluded, work.with_comments,
                                        work.algorithm, serializer, stack, id);
        bool const ambiguous = stack.has_failed() ? !resolve(root, work.uri, false, target, stack)
                                                  : serializer.counted_ids() + hidden > 1;
        if (ambiguous) {
            stack.reset();
            core::result::fresh<category::ambiguous_reference>(stack, work.uri);
            return false;
        }
    }
    if (stack.has_failed()) {
        return false;
    }
    work.value = core::binary_encoder::encode(core::binary_encoding::base64, digest);
    return true;
}

// --- writing into the caller's tree ------------------------------------------

element* last_child(element& parent, char const* name)
{
    element* found = nullptr;
    for (auto& child : parent.get_node_range()) {
        element* value = child.as_element();
        if (value != nullptr && value->get_name() == name) {
            found = value;
        }
    }
    return found;
}

std::vector<element*> children(element& parent, char const* name)
{
    std::vector<element*> found;
    for (auto& child : parent.get_node_range()) {
        element* value = child.as_element();
        if (value != nullptr && value->get_name() == name) {
            found.push_back(value);
        }
    }
    return found;
}

// The DigestValue of each Reference, in order.
std::vector<element*> digest_values(element& signed_info)
{
    std::vector<element*> found = children(signed_info, "Reference");
    for (element*& reference : found) {
        reference = reference->find_child("DigestValue");
    }
    return found;
}

// The whole signature, reporting on a stack that starts empty. Nothing is
// written into the caller's tree before everything has been computed.
//
// `kept_text` is the certificate's Base64 text as the certificate keeps it;
// when it is empty the DER form is asked for here, to be reported or encoded.
bool sign_in_place(x509_certificate const& certificate, std::string const& kept_text, evp_private_key const& key,
                   element& elemento_pai, core::result::stack& stack)
{
    std::string encoded_text;
    if (kept_text.empty()) {
        core::byte_array const certificate_der = certificate.to_byte_array(encoding::der, stack);
        if (stack.has_failed()) {
            return false;
        }
        encoded_text = core::binary_encoder::encode(core::binary_encoding::base64, certificate_der);
    }
    std::string const& certificate_text = kept_text.empty() ? encoded_text : kept_text;
    if (key.empty()) {
        core::result::fresh<category::invalid_private_key>(stack, "chave vazia");
        return false;
    }
    if (!certificate.matches(key)) {
        core::result::fresh<category::key_mismatch>(stack, certificate.get_subject_common_name());
        return false;
    }
    element* signature = last_child(elemento_pai, "Signature");
    if (signature == nullptr) {
        core::result::fresh<category::no_signature>(stack, elemento_pai.get_name());
        return false;
    }
    element const* const signature_path[] = {&elemento_pai, signature};
    if (resolved_namespace(signature_path) != detail::signature_namespace) {
        core::result::fresh<category::incomplete_template>(stack, "Signature");
        return false;
    }
    element* signed_info = signature->find_child("SignedInfo");
    if (signed_info == nullptr) {
        core::result::fresh<category::incomplete_template>(stack, "SignedInfo");
        return false;
    }

    std::string const* const canonicalization = algorithm_of(*signed_info, "CanonicalizationMethod", stack);
    std::string const* const signature_method =
        canonicalization != nullptr ? algorithm_of(*signed_info, "SignatureMethod", stack) : nullptr;
    if (stack.has_failed()) {
        return false;
    }
    auto const with_comments = detail::canonicalization_from_uri(*canonicalization);
    auto const signature_hash = detail::rsa_signature_from_uri(*signature_method);
    if (!with_comments.has_value() || !signature_hash.has_value() || key.get_type() != evp_private_key::type::rsa) {
        core::result::fresh<category::unsupported_algorithm>(
            stack, with_comments.has_value() ? *signature_method : *canonicalization);
        return false;
    }

    std::vector<element const*> const reference_elements = children(std::as_const(*signed_info), "Reference");
    if (reference_elements.empty()) {
        core::result::fresh<category::incomplete_template>(stack, "Reference");
        return false;
    }
    element* signature_value = signature->find_child("SignatureValue");
    if (signature_value == nullptr) {
        core::result::fresh<category::incomplete_template>(stack, "SignatureValue");
        return false;
    }
    detail::canonical_serializer serializer;
    std::vector<reference_work> references(reference_elements.size());
    for (std::size_t i = 0; i < references.size(); ++i) {
        if (!read_reference(*reference_elements[i], references[i], stack) ||
            !digest_reference(elemento_pai, *signature, serializer, references[i], stack)) {
            return false;
        }
    }

    // SignedInfo as it will stand, with the digests, canonicalised where it
    // stands.
    std::vector<element*> const digest_places = digest_values(*signed_info);
    std::vector<detail::canonical_serializer::replacement> filled;
    for (std::size_t i = 0; i < references.size(); ++i) {
        filled.push_back({digest_places[i], &references[i].value});
    }
    core::byte_array canonical_signed_info;
    canonical_signed_info.reserve(1024);
    auto const collect = [&canonical_signed_info](std::string_view piece) { canonical_signed_info.append(piece); };
    detail::canonical_serializer::subtree const signed_info_place{signature_path, *signed_info, nullptr, filled,
                                                                  *with_comments};
    if (!serializer.write(signed_info_place, collect, stack)) {
        return false;
    }
    core::byte_array const signature_bytes = key.sign(*signature_hash, canonical_signed_info, stack);
    if (stack.has_failed()) {
        return false;
    }

    for (std::size_t i = 0; i < references.size(); ++i) {
        digest_places[i]->set_contents(references[i].value);
    }
    signature_value->set_contents(core::binary_encoder::encode(core::binary_encoding::base64, signature_bytes));
    if (element* key_info = signature->find_child("KeyInfo")) {
        if (element* x509_data = key_info->find_child("X509Data")) {
            if (element* x509_certificate = x509_data->find_child("X509Certificate")) {
                x509_certificate->set_contents(certificate_text);
            } else {
                x509_data->append_node(element("X509Certificate", velk::xml::text(certificate_text)));
            }
        }
    }
    return true;
}

}  // namespace

signer::signer(x509_certificate const& certificate, evp_private_key const& key) : certificate_(certificate), key_(key)
{
}

bool signer::execute(velk::xml::element& elemento_pai, core::result::stack& stack) const
{
    // A stack of its own, so that items the caller left on its stack are not
    // taken for failures of this call.
    core::result::stack local;
    if (!sign_in_place(certificate_, certificate_.get_der_base64(), key_, elemento_pai, local)) {
        stack = std::move(local);
        return false;
    }
    return true;
}

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
