#include "demo_certificate.hpp"
#include "demo_notas.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::demo {

namespace {

using erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;

// From the fiscal model to the signed document: from_nota_fiscal runs the
// builder and the writer of layout 4.00 and reads the result back; assinar
// adds the enveloped signature as the last child of NFe.
std::string signed_document(erp::fiscal::nota_fiscal const& nota, cryptography::pkcs12 const& certificate,
                            char const* what)
{
    core::result::stack stack;
    documento_fiscal document = documento_fiscal::from_nota_fiscal(nota, erp::tarn::nfe::versao::versao_4_00, stack);
    check(stack, what);
    document.assinar(certificate, stack);
    check(stack, what);
    return to_text(document.get_xml(), what);
}

}  // namespace

void run_generation_step(demo_context& context)
{
    demo_context::say("generation step: an NFC-e and an NF-e of layout 4.00 from the fiscal model, signed");
    core::result::stack stack;
    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    check(stack, "generation step, certificate");

    context.write({"generation/nfce-65-sp-signed.xml", "NFe", "4.00", "65", "SP", true,
                   "NFC-e of a shop in São Paulo generated from the fiscal model (ICMS00 and ICMS60, debit card and "
                   "cash with change), signed with the throw-away certificate; without infNFeSupl"},
                  signed_document(demo_nfce(), certificate, "generation step, NFC-e"));
    context.write({"generation/nfe-55-sp-signed.xml", "NFe", "4.00", "55", "SP", true,
                   "NF-e of the same shop to a company in Campinas generated from the fiscal model (ICMS00 with IPI, "
                   "ICMS10, carrier, bill in two instalments), signed with the throw-away certificate"},
                  signed_document(demo_nfe(), certificate, "generation step, NF-e"));
}

}  // namespace velk::demo
