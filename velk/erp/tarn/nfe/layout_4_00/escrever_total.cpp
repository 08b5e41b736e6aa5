// The totals of the note, for now: ICMSTot only. ISSQNtot and retTrib come
// with the closing groups, which replace this file.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string const& tag, grupo::total const& total, core::result::stack& stack)
{
    xml::element e(tag);
    bool const escrito = escrever(e, "ICMSTot", total.ICMSTot, stack);
    return anexar(pai, std::move(e), escrito);
}

bool escrever(xml::element& pai, std::string const& tag, grupo::ICMSTot const& t, core::result::stack& stack)
{
    xml::element e(tag);
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
    return anexar(pai, std::move(e), escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
