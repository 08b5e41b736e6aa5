#include "signature_fixtures.hpp"

#include <support/test_certificates.hpp>
#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/cryptography/xml/signer.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <gtest/gtest.h>

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <stdexcept>

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

xml::element parse_element(std::string const& text)
{
    core::result::stack stack;
    xml::document document;
    if (!document.load(core::byte_array(text), stack) || document.get_root_element() == nullptr) {
        throw std::runtime_error("test document does not parse: " + stack.to_string());
    }
    return *document.get_root_element();
}

std::string to_text(xml::element const& root)
{
    core::result::stack stack;
    xml::document document;
    document.append_node(root, stack);
    std::string text = xml::document::save(document, stack).to_string();
    if (stack.has_failed()) {
        throw std::runtime_error("test document does not save: " + stack.to_string());
    }
    return text;
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

cryptography::pkcs12 test_pkcs12()
{
    auto const& certificates = test_certificates::instance();
    core::result::stack stack;
    auto bundle = cryptography::pkcs12::from_byte_array(certificates.pkcs12(), certificates.password(), stack);
    if (stack.has_failed()) {
        throw std::runtime_error("test certificate does not read: " + stack.to_string());
    }
    return bundle;
}

namespace {

void collect_error(void* context, xmlError* error)
{
    auto* errors = static_cast<std::string*>(context);
    if (error != nullptr && error->message != nullptr) {
        *errors += error->message;
    }
}

}  // namespace

std::string schema_errors(std::string const& xml_text, std::filesystem::path const& schema)
{
    std::string errors;
    xmlSchemaParserCtxt* parser = xmlSchemaNewParserCtxt(schema.c_str());
    xmlSchemaSetParserStructuredErrors(parser, collect_error, &errors);
    xmlSchema* compiled = xmlSchemaParse(parser);
    xmlSchemaFreeParserCtxt(parser);
    if (compiled == nullptr) {
        return "schema does not compile: " + errors;
    }
    xmlDoc* document = xmlReadMemory(xml_text.data(), static_cast<int>(xml_text.size()), nullptr, "UTF-8",
                                     XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (document == nullptr) {
        xmlSchemaFree(compiled);
        return "document does not parse";
    }
    xmlSchemaValidCtxt* validator = xmlSchemaNewValidCtxt(compiled);
    xmlSchemaSetValidStructuredErrors(validator, collect_error, &errors);
    if (xmlSchemaValidateDoc(validator, document) != 0 && errors.empty()) {
        errors = "invalid";
    }
    xmlSchemaFreeValidCtxt(validator);
    xmlFreeDoc(document);
    xmlSchemaFree(compiled);
    return errors;
}

}  // namespace velk::test
