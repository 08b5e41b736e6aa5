#include "demo_steps.hpp"

#include "demo_assinatura.hpp"

#include <velk/cryptography/pkcs12.hpp>
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/document.hpp>

namespace velk::demo {

namespace {

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

    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    check(stack, "certificate");

    sign_enveloped(nfe, std::string("#NFe") + access_key, certificate, stack);
    check(stack, "signature");
    context.write({"signature/nfe-signed.xml", "NFe", "4.00", "55", "SP", true,
                   "The same NF-e with its enveloped RSA-SHA1 signature (throw-away certificate)"},
                  to_text(nfe, stack));
}

}  // namespace velk::demo
