// The element ICMS of an item with the one group it holds. The sub-groups
// (funds against poverty, relief, retained and effective ICMS) have no element
// of their own: their tags stand among those of the group.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>

#include <iterator>
#include <type_traits>
#include <utility>
#include <variant>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// The element of each alternative of the ICMS record, in its order.
char const* const grupos_ICMS[] = {"ICMS00",    "ICMS10",    "ICMS20",    "ICMS30",    "ICMS40",   "ICMS51",
                                   "ICMS60",    "ICMS70",    "ICMS90",    "ICMSPart",  "ICMSST",   "ICMSSN101",
                                   "ICMSSN102", "ICMSSN201", "ICMSSN202", "ICMSSN500", "ICMSSN900"};
static_assert(std::size(grupos_ICMS) ==
              std::variant_size_v<std::remove_cvref_t<decltype(std::declval<grupo::ICMS>().base())>>);

// ICMS00 has no base for its fund: the tag is left out there alone.
bool escrever_sub(xml::element& e, core::optional<grupo::FCP> const& fcp, core::result::stack& stack)
{
    return !fcp || ((e.get_name() == "ICMS00" || d(e, "vBCFCP", fcp->vBCFCP, stack, 2)) &&
                    d(e, "pFCP", fcp->pFCP, stack, 4) && d(e, "vFCP", fcp->vFCP, stack, 2));
}

bool escrever_sub(xml::element& e, core::optional<grupo::FCPST> const& fcp, core::result::stack& stack)
{
    return !fcp || (d(e, "vBCFCPST", fcp->vBCFCPST, stack, 2) && d(e, "pFCPST", fcp->pFCPST, stack, 4) &&
                    d(e, "vFCPST", fcp->vFCPST, stack, 2));
}

bool escrever_sub(xml::element& e, core::optional<grupo::FCPSTRet> const& fcp, core::result::stack& stack)
{
    return !fcp || (d(e, "vBCFCPSTRet", fcp->vBCFCPSTRet, stack, 2) && d(e, "pFCPSTRet", fcp->pFCPSTRet, stack, 4) &&
                    d(e, "vFCPSTRet", fcp->vFCPSTRet, stack, 2));
}

bool escrever_sub(xml::element& e, core::optional<grupo::ICMSDeson> const& deson, core::result::stack& stack)
{
    return !deson ||
           (d(e, "vICMSDeson", deson->vICMSDeson, stack, 2) && u(e, "motDesICMS", deson->motDesICMS, stack, 0));
}

bool escrever_sub(xml::element& e, core::optional<grupo::ICMSSTRet> const& ret, core::result::stack& stack)
{
    return !ret ||
           (d(e, "vBCSTRet", ret->vBCSTRet, stack, 2) && d(e, "pST", ret->pST, stack, 4) &&
            d(e, "vICMSSubstituto", ret->vICMSSubstituto, stack, 2) && d(e, "vICMSSTRet", ret->vICMSSTRet, stack, 2));
}

bool escrever_sub(xml::element& e, core::optional<grupo::ICMSEfet> const& efet, core::result::stack& stack)
{
    return !efet || (d(e, "pRedBCEfet", efet->pRedBCEfet, stack, 4) && d(e, "vBCEfet", efet->vBCEfet, stack, 2) &&
                     d(e, "pICMSEfet", efet->pICMSEfet, stack, 4) && d(e, "vICMSEfet", efet->vICMSEfet, stack, 2));
}

// orig, then CST or CSOSN.
template <class Registro>
bool escrever_orig_CST(xml::element& e, Registro const& r, core::result::stack& stack)
{
    return u(e, "orig", r.orig, stack, 0) && u(e, "CST", r.CST, stack, 2);
}

template <class Registro>
bool escrever_orig_CSOSN(xml::element& e, Registro const& r, core::result::stack& stack)
{
    return u(e, "orig", r.orig, stack, 0) && u(e, "CSOSN", r.CSOSN, stack, 3);
}

// The tags of the ICMS by substitution from modBCST to vICMSST, required or
// optional as the record has them, then its fund.
template <class Registro>
bool escrever_ST(xml::element& e, Registro const& r, core::result::stack& stack)
{
    return u(e, "modBCST", r.modBCST, stack, 0) && d(e, "pMVAST", r.pMVAST, stack, 4) &&
           d(e, "pRedBCST", r.pRedBCST, stack, 4) && d(e, "vBCST", r.vBCST, stack, 2) &&
           d(e, "pICMSST", r.pICMSST, stack, 4) && d(e, "vICMSST", r.vICMSST, stack, 2);
}

// modBC, vBC, pRedBC, pICMS, vICMS, in this order, as ICMS90 and ICMSSN900 have them.
template <class Registro>
bool escrever_normal_opcional(xml::element& e, Registro const& r, core::result::stack& stack)
{
    return u(e, "modBC", r.modBC, stack, 0) && d(e, "vBC", r.vBC, stack, 2) && d(e, "pRedBC", r.pRedBC, stack, 4) &&
           d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMS", r.vICMS, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::ICMS00 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && u(e, "modBC", r.modBC, stack, 0) && d(e, "vBC", r.vBC, stack, 2) &&
           d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMS", r.vICMS, stack, 2) && escrever_sub(e, r.FCP, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS10 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && u(e, "modBC", r.modBC, stack, 0) && d(e, "vBC", r.vBC, stack, 2) &&
           d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMS", r.vICMS, stack, 2) && escrever_sub(e, r.FCP, stack) &&
           escrever_ST(e, r, stack) && escrever_sub(e, r.FCPST, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS20 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && u(e, "modBC", r.modBC, stack, 0) && d(e, "pRedBC", r.pRedBC, stack, 4) &&
           d(e, "vBC", r.vBC, stack, 2) && d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMS", r.vICMS, stack, 2) &&
           escrever_sub(e, r.FCP, stack) && escrever_sub(e, r.ICMSDeson, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS30 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && escrever_ST(e, r, stack) && escrever_sub(e, r.FCPST, stack) &&
           escrever_sub(e, r.ICMSDeson, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS40 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && escrever_sub(e, r.ICMSDeson, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS51 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && u(e, "modBC", r.modBC, stack, 0) && d(e, "pRedBC", r.pRedBC, stack, 4) &&
           d(e, "vBC", r.vBC, stack, 2) && d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMSOp", r.vICMSOp, stack, 2) &&
           d(e, "pDif", r.pDif, stack, 4) && d(e, "vICMSDif", r.vICMSDif, stack, 2) &&
           d(e, "vICMS", r.vICMS, stack, 2) && escrever_sub(e, r.FCP, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS60 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && escrever_sub(e, r.ICMSSTRet, stack) &&
           escrever_sub(e, r.FCPSTRet, stack) && escrever_sub(e, r.ICMSEfet, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS70 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && u(e, "modBC", r.modBC, stack, 0) && d(e, "pRedBC", r.pRedBC, stack, 4) &&
           d(e, "vBC", r.vBC, stack, 2) && d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMS", r.vICMS, stack, 2) &&
           escrever_sub(e, r.FCP, stack) && escrever_ST(e, r, stack) && escrever_sub(e, r.FCPST, stack) &&
           escrever_sub(e, r.ICMSDeson, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMS90 const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && escrever_normal_opcional(e, r, stack) && escrever_sub(e, r.FCP, stack) &&
           escrever_ST(e, r, stack) && escrever_sub(e, r.FCPST, stack) && escrever_sub(e, r.ICMSDeson, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMSPart const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && u(e, "modBC", r.modBC, stack, 0) && d(e, "vBC", r.vBC, stack, 2) &&
           d(e, "pRedBC", r.pRedBC, stack, 4) && d(e, "pICMS", r.pICMS, stack, 4) && d(e, "vICMS", r.vICMS, stack, 2) &&
           escrever_ST(e, r, stack) && d(e, "pBCOp", r.pBCOp, stack, 4) && u(e, "UFST", r.UFST, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::ICMSST const& r, core::result::stack& stack)
{
    return escrever_orig_CST(e, r, stack) && d(e, "vBCSTRet", r.vBCSTRet, stack, 2) && d(e, "pST", r.pST, stack, 4) &&
           d(e, "vICMSSubstituto", r.vICMSSubstituto, stack, 2) && d(e, "vICMSSTRet", r.vICMSSTRet, stack, 2) &&
           escrever_sub(e, r.FCPSTRet, stack) && d(e, "vBCSTDest", r.vBCSTDest, stack, 2) &&
           d(e, "vICMSSTDest", r.vICMSSTDest, stack, 2) && escrever_sub(e, r.ICMSEfet, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMSSN101 const& r, core::result::stack& stack)
{
    return escrever_orig_CSOSN(e, r, stack) && d(e, "pCredSN", r.pCredSN, stack, 4) &&
           d(e, "vCredICMSSN", r.vCredICMSSN, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::ICMSSN102 const& r, core::result::stack& stack)
{
    return escrever_orig_CSOSN(e, r, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMSSN201 const& r, core::result::stack& stack)
{
    return escrever_orig_CSOSN(e, r, stack) && escrever_ST(e, r, stack) && escrever_sub(e, r.FCPST, stack) &&
           d(e, "pCredSN", r.pCredSN, stack, 4) && d(e, "vCredICMSSN", r.vCredICMSSN, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::ICMSSN202 const& r, core::result::stack& stack)
{
    return escrever_orig_CSOSN(e, r, stack) && escrever_ST(e, r, stack) && escrever_sub(e, r.FCPST, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMSSN500 const& r, core::result::stack& stack)
{
    return escrever_orig_CSOSN(e, r, stack) && escrever_sub(e, r.ICMSSTRet, stack) &&
           escrever_sub(e, r.FCPSTRet, stack) && escrever_sub(e, r.ICMSEfet, stack);
}

bool escrever_grupo(xml::element& e, grupo::ICMSSN900 const& r, core::result::stack& stack)
{
    return escrever_orig_CSOSN(e, r, stack) && escrever_normal_opcional(e, r, stack) && escrever_ST(e, r, stack) &&
           escrever_sub(e, r.FCPST, stack) && d(e, "pCredSN", r.pCredSN, stack, 4) &&
           d(e, "vCredICMSSN", r.vCredICMSSN, stack, 2);
}

}  // namespace

bool escrever(xml::element& pai, std::string_view tag, grupo::ICMS const& icms, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = core::visit(
        [&](auto const& registro) {
            xml::element& g = e.append_element(grupos_ICMS[icms.index()]);
            return fechar(e, escrever_grupo(g, registro, stack));
        },
        icms);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
