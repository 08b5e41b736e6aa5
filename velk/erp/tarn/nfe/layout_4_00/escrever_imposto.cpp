// The taxes of an item besides the ICMS groups: ISSQN, IPI, import tax, PIS,
// COFINS, their substitution groups and the ICMS of the state of destination.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// The calculations of the one-ofs, written among the tags of their group.
bool escrever_calculo(xml::element& e, grupo::IPI_aliquota const& c, core::result::stack& stack)
{
    return d(e, "vBC", c.vBC, stack, 2) && d(e, "pIPI", c.pIPI, stack, 4);
}

bool escrever_calculo(xml::element& e, grupo::IPI_unidade const& c, core::result::stack& stack)
{
    return d(e, "qUnid", c.qUnid, stack, 4) && d(e, "vUnid", c.vUnid, stack, 4);
}

bool escrever_calculo(xml::element& e, grupo::PIS_aliquota const& c, core::result::stack& stack)
{
    return d(e, "vBC", c.vBC, stack, 2) && d(e, "pPIS", c.pPIS, stack, 4);
}

bool escrever_calculo(xml::element& e, grupo::PIS_quantidade const& c, core::result::stack& stack)
{
    return d(e, "qBCProd", c.qBCProd, stack, 4) && d(e, "vAliqProd", c.vAliqProd, stack, 4);
}

bool escrever_calculo(xml::element& e, grupo::COFINS_aliquota const& c, core::result::stack& stack)
{
    return d(e, "vBC", c.vBC, stack, 2) && d(e, "pCOFINS", c.pCOFINS, stack, 4);
}

// The base in units of COFINS by quantity has two places here, against four
// in PIS and in COFINSQtde.
bool escrever_calculo(xml::element& e, grupo::COFINS_quantidade const& c, core::result::stack& stack)
{
    return d(e, "qBCProd", c.qBCProd, stack, 2) && d(e, "vAliqProd", c.vAliqProd, stack, 4);
}

template <class Calculo>
bool escrever_calculo(xml::element& e, Calculo const& calculo, core::result::stack& stack)
{
    return core::visit([&](auto const& alternativa) { return escrever_calculo(e, alternativa, stack); }, calculo);
}

bool escrever_grupo(xml::element& e, grupo::IPITrib const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && escrever_calculo(e, g.calculo, stack) && d(e, "vIPI", g.vIPI, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::IPINT const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::PISAliq const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && d(e, "vBC", g.vBC, stack, 2) && d(e, "pPIS", g.pPIS, stack, 4) &&
           d(e, "vPIS", g.vPIS, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::PISQtde const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && d(e, "qBCProd", g.qBCProd, stack, 4) &&
           d(e, "vAliqProd", g.vAliqProd, stack, 4) && d(e, "vPIS", g.vPIS, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::PISNT const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::PISOutr const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && escrever_calculo(e, g.calculo, stack) && d(e, "vPIS", g.vPIS, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::COFINSAliq const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && d(e, "vBC", g.vBC, stack, 2) && d(e, "pCOFINS", g.pCOFINS, stack, 4) &&
           d(e, "vCOFINS", g.vCOFINS, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::COFINSQtde const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && d(e, "qBCProd", g.qBCProd, stack, 4) &&
           d(e, "vAliqProd", g.vAliqProd, stack, 4) && d(e, "vCOFINS", g.vCOFINS, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::COFINSNT const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2);
}

bool escrever_grupo(xml::element& e, grupo::COFINSOutr const& g, core::result::stack& stack)
{
    return u(e, "CST", g.CST, stack, 2) && escrever_calculo(e, g.calculo, stack) &&
           d(e, "vCOFINS", g.vCOFINS, stack, 2);
}

// The element of the group that a one-of holds, named by its place.
template <std::size_t N, class Variante>
bool escrever_alternativa(xml::element& pai, char const* const (&nomes)[N], Variante const& variante,
                          core::result::stack& stack)
{
    return core::visit(
        [&](auto const& registro) {
            xml::element& e = pai.append_element(nomes[variante.index()]);
            return fechar(pai, escrever_grupo(e, registro, stack));
        },
        variante);
}

char const* const grupos_IPI[] = {"IPITrib", "IPINT"};
char const* const grupos_PIS[] = {"PISAliq", "PISQtde", "PISNT", "PISOutr"};
char const* const grupos_COFINS[] = {"COFINSAliq", "COFINSQtde", "COFINSNT", "COFINSOutr"};

// ICMS comes before IPI and II, ISSQN after them (the builder sets no II
// beside an ISSQN, which the layout does not admit).
bool escrever_tributo(xml::element& imposto, grupo::ICMS const& icms, grupo::imposto const& grupos,
                      core::result::stack& stack)
{
    return escrever(imposto, "ICMS", icms, stack) && escrever(imposto, "IPI", grupos.IPI, stack) &&
           escrever(imposto, "II", grupos.II, stack);
}

bool escrever_tributo(xml::element& imposto, grupo::ISSQN const& issqn, grupo::imposto const& grupos,
                      core::result::stack& stack)
{
    return escrever(imposto, "IPI", grupos.IPI, stack) && escrever(imposto, "II", grupos.II, stack) &&
           escrever(imposto, "ISSQN", issqn, stack);
}

}  // namespace

bool escrever(xml::element& pai, std::string_view tag, grupo::imposto const& imposto, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        d(e, "vTotTrib", imposto.vTotTrib, stack, 2) &&
        core::visit([&](auto const& tributo) { return escrever_tributo(e, tributo, imposto, stack); },
                    imposto.ICMS_ou_ISSQN) &&
        escrever(e, "PIS", imposto.PIS, stack) && escrever(e, "PISST", imposto.PISST, stack) &&
        escrever(e, "COFINS", imposto.COFINS, stack) && escrever(e, "COFINSST", imposto.COFINSST, stack) &&
        escrever(e, "ICMSUFDest", imposto.ICMSUFDest, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::ISSQN const& g, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vBC", g.vBC, stack, 2) && d(e, "vAliq", g.vAliq, stack, 4) &&
                         d(e, "vISSQN", g.vISSQN, stack, 2) && u(e, "cMunFG", g.cMunFG, stack, 7) &&
                         txt(e, "cListServ", g.cListServ, stack) && d(e, "vDeducao", g.vDeducao, stack, 2) &&
                         d(e, "vOutro", g.vOutro, stack, 2) && d(e, "vDescIncond", g.vDescIncond, stack, 2) &&
                         d(e, "vDescCond", g.vDescCond, stack, 2) && d(e, "vISSRet", g.vISSRet, stack, 2) &&
                         u(e, "indISS", g.indISS, stack, 0) && txt(e, "cServico", g.cServico, stack) &&
                         u(e, "cMun", g.cMun, stack, 7) && u(e, "cPais", g.cPais, stack, 4) &&
                         txt(e, "nProcesso", g.nProcesso, stack) && u(e, "indIncentivo", g.indIncentivo, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::IPI const& ipi, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "clEnq", ipi.clEnq, stack) &&
                         (!ipi.CNPJProd || u(e, "CNPJProd", *ipi.CNPJProd, stack, 14)) &&
                         txt(e, "cSelo", ipi.cSelo, stack) && u(e, "qSelo", ipi.qSelo, stack, 12) &&
                         u(e, "cEnq", ipi.cEnq, stack, 3) && escrever_alternativa(e, grupos_IPI, ipi.tributacao, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::II const& ii, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vBC", ii.vBC, stack, 2) && d(e, "vDespAdu", ii.vDespAdu, stack, 2) &&
                         d(e, "vII", ii.vII, stack, 2) && d(e, "vIOF", ii.vIOF, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::PIS const& pis, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_alternativa(e, grupos_PIS, pis, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::COFINS const& cofins, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_alternativa(e, grupos_COFINS, cofins, stack);
    return fechar(pai, escrito);
}

// vPIS of PISST is always written; vCOFINS of COFINSST only when held.
bool escrever(xml::element& pai, std::string_view tag, grupo::PISST const& pisst, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_calculo(e, pisst.calculo, stack) && d(e, "vPIS", pisst.vPIS, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::COFINSST const& cofinsst, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_calculo(e, cofinsst.calculo, stack) && d(e, "vCOFINS", cofinsst.vCOFINS, stack, 2);
    return fechar(pai, escrito);
}

// pICMSInter has two places, every other rate of the group four.
bool escrever(xml::element& pai, std::string_view tag, grupo::ICMSUFDest const& g, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vBCUFDest", g.vBCUFDest, stack, 2) && d(e, "vBCFCPUFDest", g.vBCFCPUFDest, stack, 2) &&
                         d(e, "pFCPUFDest", g.pFCPUFDest, stack, 4) && d(e, "pICMSUFDest", g.pICMSUFDest, stack, 4) &&
                         d(e, "pICMSInter", g.pICMSInter, stack, 2) &&
                         d(e, "pICMSInterPart", g.pICMSInterPart, stack, 4) &&
                         d(e, "vFCPUFDest", g.vFCPUFDest, stack, 2) && d(e, "vICMSUFDest", g.vICMSUFDest, stack, 2) &&
                         d(e, "vICMSUFRemet", g.vICMSUFRemet, stack, 2);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
