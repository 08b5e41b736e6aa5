// The totals of the note: goods, services and withheld taxes.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string_view tag, grupo::total const& total, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever(e, "ICMSTot", total.ICMSTot, stack) &&
                         escrever(e, "ISSQNtot", total.ISSQNtot, stack) && escrever(e, "retTrib", total.retTrib, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::ICMSTot const& t, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        d(e, "vBC", t.vBC, stack, 2) && d(e, "vICMS", t.vICMS, stack, 2) &&
        d(e, "vICMSDeson", t.vICMSDeson, stack, 2) && d(e, "vFCPUFDest", t.vFCPUFDest, stack, 2) &&
        d(e, "vICMSUFDest", t.vICMSUFDest, stack, 2) && d(e, "vICMSUFRemet", t.vICMSUFRemet, stack, 2) &&
        d(e, "vFCP", t.vFCP, stack, 2) && d(e, "vBCST", t.vBCST, stack, 2) && d(e, "vST", t.vST, stack, 2) &&
        d(e, "vFCPST", t.vFCPST, stack, 2) && d(e, "vFCPSTRet", t.vFCPSTRet, stack, 2) &&
        d(e, "vProd", t.vProd, stack, 2) && d(e, "vFrete", t.vFrete, stack, 2) && d(e, "vSeg", t.vSeg, stack, 2) &&
        d(e, "vDesc", t.vDesc, stack, 2) && d(e, "vII", t.vII, stack, 2) && d(e, "vIPI", t.vIPI, stack, 2) &&
        d(e, "vIPIDevol", t.vIPIDevol, stack, 2) && d(e, "vPIS", t.vPIS, stack, 2) &&
        d(e, "vCOFINS", t.vCOFINS, stack, 2) && d(e, "vOutro", t.vOutro, stack, 2) && d(e, "vNF", t.vNF, stack, 2) &&
        d(e, "vTotTrib", t.vTotTrib, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::ISSQNtot const& t, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vServ", t.vServ, stack, 2) && d(e, "vBC", t.vBC, stack, 2) &&
                         d(e, "vISS", t.vISS, stack, 2) && d(e, "vPIS", t.vPIS, stack, 2) &&
                         d(e, "vCOFINS", t.vCOFINS, stack, 2) && dt(e, "dCompet", t.dCompet, stack) &&
                         d(e, "vDeducao", t.vDeducao, stack, 2) && d(e, "vOutro", t.vOutro, stack, 2) &&
                         d(e, "vDescIncond", t.vDescIncond, stack, 2) && d(e, "vDescCond", t.vDescCond, stack, 2) &&
                         d(e, "vISSRet", t.vISSRet, stack, 2) && u(e, "cRegTrib", t.cRegTrib, stack, 1);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::retTrib const& t, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vRetPIS", t.vRetPIS, stack, 2) && d(e, "vRetCOFINS", t.vRetCOFINS, stack, 2) &&
                         d(e, "vRetCSLL", t.vRetCSLL, stack, 2) && d(e, "vBCIRRF", t.vBCIRRF, stack, 2) &&
                         d(e, "vIRRF", t.vIRRF, stack, 2) && d(e, "vBCRetPrev", t.vBCRetPrev, stack, 2) &&
                         d(e, "vRetPrev", t.vRetPrev, stack, 2);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
