#include <velk/cryptography/xml/signer.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/identifiers.hpp>
#include <velk/cryptography/xml/detail/libxml_document.hpp>
#include <velk/cryptography/xml/detail/subtree_canonicalizer.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

namespace {

using category = cryptography_result_category;

// --- the template as libxml2 parsed it --------------------------------------

bool has_name(xmlNode const* node, char const* name)
{
    return node->type == XML_ELEMENT_NODE && std::strcmp(reinterpret_cast<char const*>(node->name), name) == 0;
}

xmlNode* first_child(xmlNode* parent, char const* name)
{
    for (xmlNode* child = parent->children; child != nullptr; child = child->next) {
        if (has_name(child, name)) {
            return child;
        }
    }
    return nullptr;
}

std::vector<xmlNode*> children(xmlNode* parent, char const* name)
{
    std::vector<xmlNode*> found;
    for (xmlNode* child = parent->children; child != nullptr; child = child->next) {
        if (has_name(child, name)) {
            found.push_back(child);
        }
    }
    return found;
}

// The value of an attribute without namespace; empty when absent.
core::optional<std::string> attribute_value(xmlNode* node, char const* name)
{
    xmlAttr* attribute = xmlHasNsProp(node, reinterpret_cast<xmlChar const*>(name), nullptr);
    if (attribute == nullptr) {
        return {};
    }
    xmlChar* value = xmlNodeListGetString(node->doc, attribute->children, 1);
    std::string text = value == nullptr ? std::string() : std::string(reinterpret_cast<char const*>(value));
    xmlFree(value);
    return text;
}

void collect_by_id(xmlNode* node, std::string const& id, std::vector<xmlNode*>& found)
{
    for (; node != nullptr; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) {
            continue;
        }
        if (attribute_value(node, "Id") == id) {
            found.push_back(node);
        }
        collect_by_id(node->children, id, found);
    }
}

// The element a reference "#id" names: the one element whose Id is id.
xmlNode* resolve(xmlNode* root, std::string const& uri, core::result::stack& stack)
{
    std::vector<xmlNode*> found;
    if (uri.size() >= 2 && uri.front() == '#') {
        collect_by_id(root, uri.substr(1), found);
    }
    if (found.empty()) {
        core::result::fresh<category, 13>(stack, uri);
        return nullptr;
    }
    if (found.size() > 1) {
        core::result::fresh<category, 14>(stack, uri);
        return nullptr;
    }
    return found.front();
}

// The Algorithm of a method element: code 12 when the element or the
// attribute is missing.
core::optional<std::string> algorithm_of(xmlNode* parent, char const* name, core::result::stack& stack)
{
    xmlNode* method = first_child(parent, name);
    core::optional<std::string> algorithm = method == nullptr ? core::optional<std::string>()
                                                              : attribute_value(method, "Algorithm");
    if (!algorithm.has_value()) {
        core::result::fresh<category, 12>(stack, name);
    }
    return algorithm;
}

// One Reference of SignedInfo and what computing its digest takes.
struct reference_work {
    xmlNode* digest_value = nullptr;
    std::string uri;
    cryptographic_hash::algorithm algorithm = cryptographic_hash::algorithm::sha1;
    bool enveloped = false;
    bool with_comments = false;
    std::string value;  // Base64 digest, once computed
};

bool read_transforms(xmlNode* reference, reference_work& work, core::result::stack& stack)
{
    xmlNode* transforms = first_child(reference, "Transforms");
    if (transforms == nullptr) {
        return true;
    }
    for (xmlNode* transform : children(transforms, "Transform")) {
        core::optional<std::string> const algorithm = attribute_value(transform, "Algorithm");
        if (!algorithm.has_value()) {
            core::result::fresh<category, 12>(stack, "Transform");
            return false;
        }
        if (*algorithm == detail::enveloped_signature_uri) {
            work.enveloped = true;
        } else if (auto const with_comments = detail::canonicalization_from_uri(*algorithm)) {
            work.with_comments = *with_comments;
        } else {
            core::result::fresh<category, 11>(stack, *algorithm);
            return false;
        }
    }
    return true;
}

bool read_reference(xmlNode* reference, reference_work& work, core::result::stack& stack)
{
    work.uri = attribute_value(reference, "URI").value_or("");
    if (!read_transforms(reference, work, stack)) {
        return false;
    }
    core::optional<std::string> const digest_method = algorithm_of(reference, "DigestMethod", stack);
    if (!digest_method.has_value()) {
        return false;
    }
    auto const algorithm = detail::digest_from_uri(*digest_method);
    if (!algorithm.has_value()) {
        core::result::fresh<category, 11>(stack, *digest_method);
        return false;
    }
    work.algorithm = *algorithm;
    work.digest_value = first_child(reference, "DigestValue");
    if (work.digest_value == nullptr) {
        core::result::fresh<category, 12>(stack, "DigestValue");
        return false;
    }
    return true;
}

// Digests the referenced element and writes the value into the parsed
// DigestValue, where the canonical SignedInfo will read it.
bool digest_reference(detail::libxml_document const& document, xmlNode* signature, reference_work& work,
                      core::result::stack& stack)
{
    xmlNode* target = resolve(document.get_root(), work.uri, stack);
    if (target == nullptr) {
        return false;
    }
    cryptographic_hash hash = cryptographic_hash::from_algorithm(work.algorithm, stack);
    if (stack.has_failed()) {
        return false;
    }
    auto const feed = [&hash](unsigned char const* data, std::size_t size) { hash.update(data, size); };
    if (!detail::subtree_canonicalizer::write(document.get(), target, work.enveloped ? signature : nullptr,
                                              work.with_comments, feed, stack)) {
        return false;
    }
    core::byte_array const digest = hash.finish(stack);
    if (stack.has_failed()) {
        return false;
    }
    work.value = core::binary_encoder::encode(core::binary_encoding::base64, digest);
    xmlNodeSetContent(work.digest_value, reinterpret_cast<xmlChar const*>(work.value.c_str()));
    return true;
}

// --- the same template in the caller's tree ----------------------------------

velk::xml::element* last_child(velk::xml::element& parent, char const* name)
{
    velk::xml::element* found = nullptr;
    for (auto& child : parent.get_node_range()) {
        velk::xml::element* element = child.as_element();
        if (element != nullptr && element->get_name() == name) {
            found = element;
        }
    }
    return found;
}

std::vector<velk::xml::element*> children(velk::xml::element& parent, char const* name)
{
    std::vector<velk::xml::element*> found;
    for (auto& child : parent.get_node_range()) {
        velk::xml::element* element = child.as_element();
        if (element != nullptr && element->get_name() == name) {
            found.push_back(element);
        }
    }
    return found;
}

// Where the signer writes: found before anything is written, so that a
// template it cannot fill is left untouched.
struct output_places {
    std::vector<velk::xml::element*> digest_values;
    velk::xml::element* signature_value = nullptr;
    velk::xml::element* x509_data = nullptr;  // null without KeyInfo/X509Data
};

bool find_output_places(velk::xml::element& signature, std::size_t reference_count, output_places& places,
                        core::result::stack& stack)
{
    velk::xml::element* signed_info = signature.find_child("SignedInfo");
    std::vector<velk::xml::element*> references;
    if (signed_info != nullptr) {
        references = children(*signed_info, "Reference");
    }
    for (velk::xml::element* reference : references) {
        places.digest_values.push_back(reference->find_child("DigestValue"));
    }
    places.signature_value = signature.find_child("SignatureValue");
    if (velk::xml::element* key_info = signature.find_child("KeyInfo")) {
        places.x509_data = key_info->find_child("X509Data");
    }
    bool const complete = places.digest_values.size() == reference_count &&
                          std::find(places.digest_values.begin(), places.digest_values.end(), nullptr) ==
                              places.digest_values.end();
    if (!complete) {
        core::result::fresh<category, 12>(stack, "Reference");
        return false;
    }
    if (places.signature_value == nullptr) {
        core::result::fresh<category, 12>(stack, "SignatureValue");
        return false;
    }
    return true;
}

// The caller's tree as bytes. The element is moved into a document and back,
// so the tree is not copied.
core::byte_array serialise(velk::xml::element& elemento_pai, core::result::stack& stack)
{
    velk::xml::document document;
    if (!document.append_node(std::move(elemento_pai), stack)) {
        return {};
    }
    core::byte_array bytes = velk::xml::document::save(document, stack);
    elemento_pai = std::move(*document.get_root_element());
    if (stack.has_failed()) {
        core::result::chain<category, 16>(stack, "o elemento pai não pôde ser serializado");
    }
    return bytes;
}

// The whole signature, reporting on a stack that starts empty.
bool sign_in_place(x509_certificate const& certificate, evp_private_key const& key,
                   velk::xml::element& elemento_pai, core::result::stack& stack)
{
    core::byte_array const certificate_der = certificate.to_byte_array(encoding::der, stack);
    if (stack.has_failed()) {
        return false;
    }
    if (key.empty()) {
        core::result::fresh<category, 5>(stack, "chave vazia");
        return false;
    }
    if (!certificate.matches(key)) {
        core::result::fresh<category, 7>(stack, certificate.get_subject_common_name());
        return false;
    }
    velk::xml::element* signature = last_child(elemento_pai, "Signature");
    if (signature == nullptr) {
        core::result::fresh<category, 15>(stack, elemento_pai.get_name());
        return false;
    }

    core::byte_array const serialised = serialise(elemento_pai, stack);
    if (stack.has_failed()) {
        return false;
    }
    // Moving the tree in and out of the document may have moved its nodes.
    signature = last_child(elemento_pai, "Signature");
    detail::libxml_document const document = detail::libxml_document::parse(serialised, stack);
    if (stack.has_failed()) {
        return false;
    }
    xmlNode* parsed_signature = nullptr;
    for (xmlNode* child = document.get_root()->children; child != nullptr; child = child->next) {
        if (has_name(child, "Signature")) {
            parsed_signature = child;
        }
    }
    if (parsed_signature == nullptr || parsed_signature->ns == nullptr ||
        std::strcmp(reinterpret_cast<char const*>(parsed_signature->ns->href), detail::signature_namespace) != 0) {
        core::result::fresh<category, 12>(stack, "Signature");
        return false;
    }
    xmlNode* signed_info = first_child(parsed_signature, "SignedInfo");
    if (signed_info == nullptr) {
        core::result::fresh<category, 12>(stack, "SignedInfo");
        return false;
    }

    core::optional<std::string> const canonicalization = algorithm_of(signed_info, "CanonicalizationMethod", stack);
    core::optional<std::string> const signature_method =
        canonicalization.has_value() ? algorithm_of(signed_info, "SignatureMethod", stack) : core::optional<std::string>();
    if (stack.has_failed()) {
        return false;
    }
    auto const with_comments = detail::canonicalization_from_uri(*canonicalization);
    auto const signature_hash = detail::rsa_signature_from_uri(*signature_method);
    if (!with_comments.has_value() || !signature_hash.has_value() || key.get_type() != evp_private_key::type::rsa) {
        core::result::fresh<category, 11>(stack, with_comments.has_value() ? *signature_method : *canonicalization);
        return false;
    }

    std::vector<xmlNode*> const parsed_references = children(signed_info, "Reference");
    if (parsed_references.empty()) {
        core::result::fresh<category, 12>(stack, "Reference");
        return false;
    }
    output_places places;
    if (!find_output_places(*signature, parsed_references.size(), places, stack)) {
        return false;
    }
    std::vector<reference_work> references(parsed_references.size());
    for (std::size_t i = 0; i < references.size(); ++i) {
        if (!read_reference(parsed_references[i], references[i], stack) ||
            !digest_reference(document, parsed_signature, references[i], stack)) {
            return false;
        }
    }

    core::byte_array canonical_signed_info;
    canonical_signed_info.reserve(2048);
    auto const collect = [&canonical_signed_info](unsigned char const* data, std::size_t size) {
        canonical_signed_info.append(data, data + size);
    };
    if (!detail::subtree_canonicalizer::write(document.get(), signed_info, nullptr, *with_comments, collect, stack)) {
        return false;
    }
    core::byte_array const signature_value = key.sign(*signature_hash, canonical_signed_info, stack);
    if (stack.has_failed()) {
        return false;
    }

    for (std::size_t i = 0; i < references.size(); ++i) {
        places.digest_values[i]->set_contents(references[i].value);
    }
    places.signature_value->set_contents(core::binary_encoder::encode(core::binary_encoding::base64, signature_value));
    if (places.x509_data != nullptr) {
        std::string const certificate_text = core::binary_encoder::encode(core::binary_encoding::base64, certificate_der);
        if (velk::xml::element* x509_certificate = places.x509_data->find_child("X509Certificate")) {
            x509_certificate->set_contents(certificate_text);
        } else {
            places.x509_data->append_node(velk::xml::element("X509Certificate", velk::xml::text(certificate_text)));
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
    if (!sign_in_place(certificate_, key_, elemento_pai, local)) {
        stack = std::move(local);
        return false;
    }
    return true;
}

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
