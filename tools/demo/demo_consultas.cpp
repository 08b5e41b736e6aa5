#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_recibo.hpp>

namespace velk::demo {

namespace {

namespace requisicao = erp::tarn::nfe::sefaz_data::requisicao;

constexpr char demo_key[] = "35240612345678000195550010000000011000000017";

erp::tarn::chave_acesso read_key()
{
    erp::tarn::chave_acesso key;
    core::result::stack stack;
    core::read_value(key, demo_key, stack);
    check(stack, "access key");
    return key;
}

}  // namespace

void run_queries_step(demo_context& context)
{
    demo_context::say("queries step: situation of an NF-e, result of a batch, a GTIN of the catalogue");
    core::result::stack stack;

    xml::element const situation = requisicao::consulta::from_data(read_key(), erp::tarn::nfe::versao::versao_4_00,
                                                                   erp::tarn::ambiente::homologacao)
                                       .get_xml(stack);
    check(stack, "consulta");
    context.write({"consultas/consSitNFe.xml", "consSitNFe", "4.00", "55", "SP", false,
                   std::string("Situation of the NF-e of key ") + demo_key + " (test environment)"},
                  to_text(situation, "consSitNFe"));

    xml::element const receipt =
        requisicao::consulta_recibo::from_data(erp::tarn::ambiente::homologacao, erp::tarn::nfe::versao::versao_4_00,
                                               351000000012345ULL, erp::estado::sp, erp::tarn::modelo::nfe)
            .get_xml(stack);
    check(stack, "consulta_recibo");
    context.write({"consultas/consReciNFe.xml", "consReciNFe", "4.00", "55", "SP", false,
                   "Processing result of the authorization batch of receipt 351000000012345"},
                  to_text(receipt, "consReciNFe"));

    xml::element const gtin = requisicao::consulta_gtin::from_data("7891000315507").get_xml(stack);
    check(stack, "consulta_gtin");
    context.write({"consultas/consGTIN.xml", "consGTIN", "1.00", "", "", false,
                   "The GTIN catalogue asked about barcode 7891000315507"},
                  to_text(gtin, "consGTIN"));
}

}  // namespace velk::demo
