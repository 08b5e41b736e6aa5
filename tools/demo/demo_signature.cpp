#include "demo_steps.hpp"

#include <pki/certificate_authority.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/cryptography/xml/signer.hpp>
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/document.hpp>

namespace velk::demo {

namespace {

namespace crypto_xml = cryptography::xml;

constexpr char nfe_namespace[] = "http://www.portalfiscal.inf.br/nfe";
constexpr char access_key[] = "35240612345678000195550010000000011000000010";

void check(core::result::stack const& stack, char const* what)
{
    if (stack.has_failed()) {
        throw demo_failure{std::string(what) + ":\n" + stack.to_string()};
    }
}

xml::element leaf(char const* name, char const* value)
{
    return xml::element(name, xml::text(value));
}

// A tiny NF-e of the demo's own: enough of infNFe to show what is signed.
xml::element make_document(core::result::stack& stack)
{
    xml::element ide("ide");
    ide.append_node(leaf("cUF", "35"));
    ide.append_node(leaf("natOp", "VENDA DE MERCADORIA"));
    ide.append_node(leaf("mod", "55"));
    ide.append_node(leaf("serie", "1"));
    ide.append_node(leaf("nNF", "1"));
    xml::element emit("emit");
    emit.append_node(leaf("CNPJ", "12345678000195"));
    emit.append_node(leaf("xNome", "EMPRESA DEMONSTRACAO LTDA"));

    xml::element information("infNFe");
    information.append_attribute(xml::attribute("versao", "4.00"), stack);
    information.append_attribute(xml::attribute("Id", std::string("NFe") + access_key), stack);
    information.append_node(std::move(ide));
    information.append_node(std::move(emit));

    xml::element nfe("NFe");
    nfe.append_namespace(xml::namespace_id("", nfe_namespace), stack);
    nfe.append_node(std::move(information));
    return nfe;
}

std::string to_text(xml::element const& root, core::result::stack& stack)
{
    xml::document document;
    document.append_node(root, stack);
    return xml::document::save(document, stack).to_string();
}

// The enveloped RSA-SHA1 signature of the NF-e layouts, appended as the last
// child of the root and computed with the certificate.
void sign(xml::element& nfe, cryptography::pkcs12 const& certificate, core::result::stack& stack)
{
    xml::canonicalization_parameters::version_1_0 const parameters;
    crypto_xml::method::canonicalization const canonicalization(parameters);
    crypto_xml::reference reference(crypto_xml::method::digest::from_sha1());
    reference.set_uri(std::string("#NFe") + access_key);
    reference.add_transform(crypto_xml::method::transform::from_enveloped_signature());
    reference.add_transform(crypto_xml::method::transform::from_canonicalization_method(canonicalization));
    crypto_xml::signed_info info(canonicalization, crypto_xml::method::signature::from_rsa(
                                                       cryptography::cryptographic_hash::algorithm::sha1));
    info.add_reference(reference);
    crypto_xml::key_info key;
    key.add_X509();
    xml::element signature = crypto_xml::signature_template(info, key, {}).get_element_template(stack);
    check(stack, "signature template");
    nfe.append_node(std::move(signature));
    crypto_xml::signer(certificate.get_certificate(), certificate.get_evp_private_key()).execute(nfe, stack);
}

}  // namespace

void run_signature_step(demo_context& context)
{
    demo_context::say("signature step: a small NF-e signed with a throw-away certificate");
    core::result::stack stack;
    xml::element nfe = make_document(stack);
    core::byte_array const canonical = xml::canonicalize(core::byte_array(to_text(nfe, stack)), {}, stack);
    check(stack, "document");
    context.write({"signature/nfe-canonical.xml", "NFe", "4.00", "55", "SP", false,
                   "Canonical XML 1.0 of a small unsigned NF-e made by the demo"},
                  canonical.to_string());

    tools::pki::certificate_authority const authority("Velk Demo CA");
    std::string const password = "demo";
    core::byte_array const bundle =
        authority.issue_client("EMPRESA DEMONSTRACAO LTDA:12345678000195").to_pkcs12(password);
    cryptography::pkcs12 const certificate = cryptography::pkcs12::from_byte_array(bundle, password, stack);
    check(stack, "certificate");

    sign(nfe, certificate, stack);
    check(stack, "signature");
    context.write({"signature/nfe-signed.xml", "NFe", "4.00", "55", "SP", true,
                   "The same NF-e with its enveloped RSA-SHA1 signature (throw-away certificate)"},
                  to_text(nfe, stack));
}

}  // namespace velk::demo
