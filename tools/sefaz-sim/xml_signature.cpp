#include "xml_signature.hpp"

#include "xml_reading.hpp"

#include <libxml/c14n.h>
#include <libxml/xmlIO.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>
#include <vector>

namespace velk::tools::sefaz_sim {

namespace {

using namespace xml_reading;

struct document_deleter {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using document_ptr = std::unique_ptr<xmlDoc, document_deleter>;

struct certificate_deleter {
    void operator()(X509* certificate) const { X509_free(certificate); }
};

struct digest_context_deleter {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

// The node set of a reference: the apex and what is under it, without the
// excluded subtree. Namespace nodes are judged by their element.
struct node_set {
    xmlNode const* apex;
    xmlNode const* excluded;
};

int is_visible(void* data, xmlNode* node, xmlNode* parent)
{
    auto const* set = static_cast<node_set const*>(data);
    xmlNode const* at = node == nullptr || node->type == XML_NAMESPACE_DECL ? parent : node;
    for (; at != nullptr; at = at->parent) {
        if (at == set->excluded) {
            return 0;
        }
        if (at == set->apex) {
            return 1;
        }
    }
    return 0;
}

bool algorithm_is(xmlNode const* element, char const* uri)
{
    return element != nullptr && attribute(element, "Algorithm") == uri;
}

xmlNode* signature_of(xmlNode const* root)
{
    for (xmlNode* candidate : children(root, "Signature")) {
        if (namespace_of(candidate) == xml_signature::namespace_uri) {
            return candidate;
        }
    }
    return nullptr;
}

// The form every NF-e signature has: one reference to the signed element, the
// two transforms in their order, the algorithms of the layouts.
bool is_standard(xmlNode const* signature, std::string const& id)
{
    xmlNode const* const info = child(signature, "SignedInfo");
    std::vector<xmlNode*> const references = children(info, "Reference");
    if (references.size() != 1 || id.empty() || attribute(references.front(), "URI") != "#" + id) {
        return false;
    }
    std::vector<xmlNode*> const transforms = children(child(references.front(), "Transforms"), "Transform");
    return algorithm_is(child(info, "CanonicalizationMethod"), xml_signature::canonical_xml) &&
           algorithm_is(child(info, "SignatureMethod"), xml_signature::rsa_sha1) &&
           algorithm_is(child(references.front(), "DigestMethod"), xml_signature::sha1) && transforms.size() == 2 &&
           algorithm_is(transforms[0], xml_signature::enveloped) &&
           algorithm_is(transforms[1], xml_signature::canonical_xml);
}

std::string trimmed(std::string text)
{
    auto const blank = [](char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; };
    while (!text.empty() && blank(text.back())) {
        text.pop_back();
    }
    std::size_t start = 0;
    while (start < text.size() && blank(text[start])) {
        ++start;
    }
    return text.substr(start);
}

bool signature_matches(X509* certificate, std::string const& signed_bytes, std::string const& signature_value)
{
    EVP_PKEY* const key = X509_get0_pubkey(certificate);
    std::unique_ptr<EVP_MD_CTX, digest_context_deleter> const context(EVP_MD_CTX_new());
    if (key == nullptr || !context ||
        EVP_DigestVerifyInit(context.get(), nullptr, EVP_sha1(), nullptr, key) != 1) {
        return false;
    }
    return EVP_DigestVerify(context.get(), reinterpret_cast<unsigned char const*>(signature_value.data()),
                            signature_value.size(), reinterpret_cast<unsigned char const*>(signed_bytes.data()),
                            signed_bytes.size()) == 1;
}

}  // namespace

xml_signature::outcome xml_signature::verify(xmlNode const* root, std::string_view signed_name)
{
    outcome checked;
    document_ptr const own(xmlNewDoc(reinterpret_cast<xmlChar const*>("1.0")));
    xmlNode* const copy = xmlDocCopyNode(const_cast<xmlNode*>(root), own.get(), 1);
    if (copy == nullptr) {
        return checked;
    }
    xmlDocSetRootElement(own.get(), copy);
    xmlNode const* const signed_element = child(copy, signed_name);
    xmlNode const* const signature = signature_of(copy);
    if (signed_element == nullptr || signature == nullptr || !is_standard(signature, attribute(signed_element, "Id"))) {
        return checked;
    }
    std::string const der = from_base64(text_at(signature, {"KeyInfo", "X509Data", "X509Certificate"}));
    auto const* der_bytes = reinterpret_cast<unsigned char const*>(der.data());
    std::unique_ptr<X509, certificate_deleter> const certificate(
        d2i_X509(nullptr, &der_bytes, static_cast<long>(der.size())));
    if (!certificate) {
        return checked;
    }
    checked.result = verdict::differs;
    std::string const digest = sha1_base64(canonical_form(own.get(), signed_element, signature));
    if (digest != trimmed(text_at(signature, {"SignedInfo", "Reference", "DigestValue"}))) {
        return checked;
    }
    std::string const signed_info = canonical_form(own.get(), child(signature, "SignedInfo"));
    if (!signature_matches(certificate.get(), signed_info, from_base64(text_at(signature, {"SignatureValue"})))) {
        return checked;
    }
    checked.result = verdict::valid;
    checked.digest_value = digest;
    return checked;
}

std::string xml_signature::canonical_form(xmlDoc* document, xmlNode const* apex, xmlNode const* excluded)
{
    if (document == nullptr || apex == nullptr) {
        return std::string();
    }
    node_set set{apex, excluded};
    xmlOutputBuffer* const buffer = xmlAllocOutputBuffer(nullptr);
    if (buffer == nullptr) {
        return std::string();
    }
    int const written = xmlC14NExecute(document, &is_visible, &set, XML_C14N_1_0, nullptr, 0, buffer);
    std::string canonical;
    if (written >= 0) {
        canonical.assign(reinterpret_cast<char const*>(xmlOutputBufferGetContent(buffer)),
                         xmlOutputBufferGetSize(buffer));
    }
    xmlOutputBufferClose(buffer);
    return canonical;
}

std::string xml_signature::sha1_base64(std::string const& bytes)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (EVP_Digest(bytes.data(), bytes.size(), digest, &size, EVP_sha1(), nullptr) != 1) {
        return std::string();
    }
    return to_base64(std::string(reinterpret_cast<char const*>(digest), size));
}

std::string xml_signature::to_base64(std::string const& bytes)
{
    std::string encoded(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    int const size = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(encoded.data()),
                                     reinterpret_cast<unsigned char const*>(bytes.data()),
                                     static_cast<int>(bytes.size()));
    encoded.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return encoded;
}

std::string xml_signature::from_base64(std::string_view text)
{
    std::string compact;
    for (char const c : text) {
        if (c != ' ' && c != '\n' && c != '\r' && c != '\t') {
            compact += c;
        }
    }
    if (compact.empty() || compact.size() % 4 != 0) {
        return std::string();
    }
    std::string decoded(compact.size() / 4 * 3, '\0');
    int const size = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(decoded.data()),
                                     reinterpret_cast<unsigned char const*>(compact.data()),
                                     static_cast<int>(compact.size()));
    if (size < 0) {
        return std::string();
    }
    std::size_t padding = 0;
    while (padding < 2 && compact[compact.size() - 1 - padding] == '=') {
        ++padding;
    }
    decoded.resize(static_cast<std::size_t>(size) - padding);
    return decoded;
}

}  // namespace velk::tools::sefaz_sim
