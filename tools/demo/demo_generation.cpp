#include "demo_assinatura.hpp"
#include "demo_notas.hpp"
#include "demo_steps.hpp"

#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>
#include <velk/xml/attribute.hpp>
#include <velk/xml/document.hpp>

namespace velk::demo {

namespace {

namespace layout = erp::tarn::nfe::layout_4_00;

void stop_on_failure(core::result::stack const& stack, std::string const& what)
{
    if (stack.has_failed()) {
        throw demo_failure{"generation step, " + what + ":\n" + stack.to_string()};
    }
}

// From the fiscal model to the signed document: the builder fills the tree,
// the writer makes the XML, and the signature references infNFe by its Id.
std::string signed_document(erp::fiscal::nota_fiscal const& nota, cryptography::pkcs12 const& certificate,
                            std::string const& what)
{
    core::result::stack stack;
    layout::layout_4_00 const tree = layout::montar_layout_4_00(nota, stack);
    stop_on_failure(stack, what + " (building)");
    xml::document document = layout::escrever_layout_4_00(tree, stack);
    stop_on_failure(stack, what + " (writing)");
    sign_enveloped(*document.get_root_element(), "#" + tree.Id, certificate, stack);
    stop_on_failure(stack, what + " (signing)");
    std::string text = xml::document::save(document, stack).to_string();
    stop_on_failure(stack, what + " (saving)");
    return text;
}

}  // namespace

void run_generation_step(demo_context& context)
{
    demo_context::say("generation step: an NFC-e and an NF-e of layout 4.00 from the fiscal model, signed");
    core::result::stack stack;
    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    stop_on_failure(stack, "certificate");

    context.write({"generation/nfce-65-sp-signed.xml", "NFe", "4.00", "65", "SP", true,
                   "NFC-e of a shop in São Paulo generated from the fiscal model (ICMS00 and ICMS60, debit card and "
                   "cash with change), signed with the throw-away certificate; without infNFeSupl"},
                  signed_document(demo_nfce(), certificate, "NFC-e"));
    context.write({"generation/nfe-55-sp-signed.xml", "NFe", "4.00", "55", "SP", true,
                   "NF-e of the same shop to a company in Campinas generated from the fiscal model (ICMS00 with IPI, "
                   "ICMS10, carrier, bill in two instalments), signed with the throw-away certificate"},
                  signed_document(demo_nfe(), certificate, "NF-e"));
}

}  // namespace velk::demo
