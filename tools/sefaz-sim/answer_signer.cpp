#include "answer_signer.hpp"

#include "xml_reading.hpp"
#include "xml_signature.hpp"

#include <libxml/parser.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <cstdio>

namespace velk::tools::sefaz_sim {

namespace {

struct document_deleter {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using document_ptr = std::unique_ptr<xmlDoc, document_deleter>;

document_ptr parse(std::string const& text)
{
    return document_ptr(xmlReadMemory(text.data(), static_cast<int>(text.size()), "answer.xml", nullptr,
                                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
}

xmlNode* child_with_id(xmlNode const* root, std::string const& id)
{
    for (xmlNode* node = root == nullptr ? nullptr : root->children; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE && xml_reading::attribute(node, "Id") == id) {
            return node;
        }
    }
    return nullptr;
}

template <typename T>
T* read_pem(std::filesystem::path const& file, T* (*reader)(FILE*, T**, pem_password_cb*, void*))
{
    FILE* const in = std::fopen(file.c_str(), "rb");
    if (in == nullptr) {
        return nullptr;
    }
    T* const read = reader(in, nullptr, nullptr, nullptr);
    std::fclose(in);
    return read;
}

}  // namespace

struct answer_signer::keys {
    X509* certificate = nullptr;
    EVP_PKEY* key = nullptr;
    std::string certificate_base64;
    ~keys()
    {
        X509_free(certificate);
        EVP_PKEY_free(key);
    }
};

answer_signer::answer_signer(std::filesystem::path const& certificate_pem, std::filesystem::path const& key_pem)
    : keys_(std::make_unique<keys>())
{
    keys_->certificate = read_pem<X509>(certificate_pem, &PEM_read_X509);
    keys_->key = read_pem<EVP_PKEY>(key_pem, &PEM_read_PrivateKey);
    if (keys_->certificate != nullptr) {
        unsigned char* der = nullptr;
        int const size = i2d_X509(keys_->certificate, &der);
        if (size > 0) {
            keys_->certificate_base64 =
                xml_signature::to_base64(std::string(reinterpret_cast<char const*>(der), static_cast<std::size_t>(size)));
        }
        OPENSSL_free(der);
    }
}

answer_signer::~answer_signer() = default;

bool answer_signer::valid() const
{
    return keys_->key != nullptr && !keys_->certificate_base64.empty() &&
           X509_check_private_key(keys_->certificate, keys_->key) == 1;
}

std::string answer_signer::sign(std::string const& message, std::string const& id) const
{
    if (!valid()) {
        return std::string();
    }
    document_ptr const unsigned_message = parse(message);
    xmlNode* const target =
        unsigned_message ? child_with_id(xmlDocGetRootElement(unsigned_message.get()), id) : nullptr;
    if (target == nullptr) {
        return std::string();
    }
    std::string const digest =
        xml_signature::sha1_base64(xml_signature::canonical_form(unsigned_message.get(), target));
    std::string const algorithm = "Algorithm=\"";
    std::string const signature =
        std::string("<Signature xmlns=\"") + xml_signature::namespace_uri + "\"><SignedInfo><CanonicalizationMethod " +
        algorithm + xml_signature::canonical_xml + "\"/><SignatureMethod " + algorithm + xml_signature::rsa_sha1 +
        "\"/><Reference URI=\"#" + id + "\"><Transforms><Transform " + algorithm + xml_signature::enveloped +
        "\"/><Transform " + algorithm + xml_signature::canonical_xml + "\"/></Transforms><DigestMethod " + algorithm +
        xml_signature::sha1 + "\"/><DigestValue>" + digest +
        "</DigestValue></Reference></SignedInfo><SignatureValue></SignatureValue><KeyInfo><X509Data><X509Certificate>" +
        keys_->certificate_base64 + "</X509Certificate></X509Data></KeyInfo></Signature>";
    std::size_t const closing = message.rfind("</");
    std::string with_template = message;
    with_template.insert(closing, signature);

    document_ptr const templated = parse(with_template);
    xmlNode* const root = templated ? xmlDocGetRootElement(templated.get()) : nullptr;
    xmlNode* const signed_info = xml_reading::descendant(root, {"Signature", "SignedInfo"});
    std::string const canonical = xml_signature::canonical_form(templated.get(), signed_info);
    if (canonical.empty()) {
        return std::string();
    }
    std::unique_ptr<EVP_MD_CTX, void (*)(EVP_MD_CTX*)> const context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    std::size_t size = 0;
    if (!context || EVP_DigestSignInit(context.get(), nullptr, EVP_sha1(), nullptr, keys_->key) != 1 ||
        EVP_DigestSign(context.get(), nullptr, &size, reinterpret_cast<unsigned char const*>(canonical.data()),
                       canonical.size()) != 1) {
        return std::string();
    }
    std::string value(size, '\0');
    if (EVP_DigestSign(context.get(), reinterpret_cast<unsigned char*>(value.data()), &size,
                       reinterpret_cast<unsigned char const*>(canonical.data()), canonical.size()) != 1) {
        return std::string();
    }
    value.resize(size);
    std::string const empty_value = "<SignatureValue></SignatureValue>";
    with_template.replace(with_template.find(empty_value), empty_value.size(),
                          "<SignatureValue>" + xml_signature::to_base64(value) + "</SignatureValue>");
    return with_template;
}

}  // namespace velk::tools::sefaz_sim
