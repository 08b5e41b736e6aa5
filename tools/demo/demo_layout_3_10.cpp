#include "demo_certificate.hpp"
#include "demo_notas.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::demo {

void run_layout_3_10_step(demo_context& context)
{
    demo_context::say("layout 3.10 step: the NF-e of the generation step in the older layout, signed");
    using erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
    using erp::tarn::nfe::versao;
    core::result::stack stack;
    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    check(stack, "layout 3.10 step, certificate");
    // The same model gives either layout: the builder of 3.10 reads what the
    // older layout has (indPag of the note, one pag per payment) and leaves
    // out what it has not.
    documento_fiscal document = documento_fiscal::from_nota_fiscal(demo_nfe(), versao::versao_3_10, stack);
    check(stack, "layout 3.10 step, NF-e");
    document.assinar(certificate, stack);
    check(stack, "layout 3.10 step, signature");
    context.write({"layout-3.10/nfe-55-sp-3.10-signed.xml", "NFe", "3.10", "55", "SP", true,
                   "The NF-e of generation/nfe-55-sp-signed.xml from the same fiscal model in layout 3.10, signed "
                   "with the throw-away certificate"},
                  to_text(document.get_xml(), "layout 3.10 step, text"));
}

}  // namespace velk::demo
