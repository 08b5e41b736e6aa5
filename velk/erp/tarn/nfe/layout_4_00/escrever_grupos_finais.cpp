// The optional closing groups: the bill, the marketplace, additional
// information, export, purchase, sugar cane and the technical manager.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/attribute.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// The day of a supply of sugar cane is an attribute of its entry, as nItem is
// of det.
bool escrever_dia(xml::element& forDia, std::uint16_t dia, core::result::stack& stack)
{
    std::string const texto = core::make_string(dia, stack);
    if (stack.has_failed()) {
        core::result::chain<sefaz_data::result_category::texto_elemento_invalido>(stack, "dia");
        return false;
    }
    return forDia.append_attribute(xml::attribute("dia", texto), stack);
}

}  // namespace

bool escrever(xml::element& pai, std::string_view tag, grupo::cobr const& cobr, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever(e, "fat", cobr.fat, stack) && escrever(e, "dup", cobr.dup, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::fat const& fat, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "nFat", fat.nFat, stack) && d(e, "vOrig", fat.vOrig, stack, 2) &&
                         d(e, "vDesc", fat.vDesc, stack, 2) && d(e, "vLiq", fat.vLiq, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::dup const& dup, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        txt(e, "nDup", dup.nDup, stack) && dt(e, "dVenc", dup.dVenc, stack) && d(e, "vDup", dup.vDup, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::infIntermed const& infIntermed,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = cnpj(e, infIntermed.CNPJ, stack) && txt(e, "idCadIntTran", infIntermed.idCadIntTran, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::infAdic const& infAdic, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "infAdFisco", infAdic.infAdFisco, stack) && txt(e, "infCpl", infAdic.infCpl, stack) &&
                         escrever(e, "obsCont", infAdic.obsCont, stack) &&
                         escrever(e, "obsFisco", infAdic.obsFisco, stack) &&
                         escrever(e, "procRef", infAdic.procRef, stack);
    return fechar(pai, escrito);
}

// xCampo is a child element here, like xTexto.
bool escrever(xml::element& pai, std::string_view tag, grupo::observacao const& observacao,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "xCampo", observacao.xCampo, stack) && txt(e, "xTexto", observacao.xTexto, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::procRef const& procRef, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "nProc", procRef.nProc, stack) && u(e, "indProc", procRef.indProc, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::exporta const& exporta, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "UFSaidaPais", exporta.UFSaidaPais, stack) &&
                         txt(e, "xLocExporta", exporta.xLocExporta, stack) &&
                         txt(e, "xLocDespacho", exporta.xLocDespacho, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::compra const& compra, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "xNEmp", compra.xNEmp, stack) && txt(e, "xPed", compra.xPed, stack) &&
                         txt(e, "xCont", compra.xCont, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::cana const& cana, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "safra", cana.safra, stack) && txt(e, "ref", cana.ref, stack) &&
                         escrever(e, "forDia", cana.forDia, stack) && d(e, "qTotMes", cana.qTotMes, stack, 10) &&
                         d(e, "qTotAnt", cana.qTotAnt, stack, 10) && d(e, "qTotGer", cana.qTotGer, stack, 10) &&
                         escrever(e, "deduc", cana.deduc, stack) && d(e, "vFor", cana.vFor, stack, 2) &&
                         d(e, "vTotDed", cana.vTotDed, stack, 2) && d(e, "vLiqFor", cana.vLiqFor, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::forDia const& forDia, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_dia(e, forDia.dia, stack) && d(e, "qtde", forDia.qtde, stack, 10);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::deduc const& deduc, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "xDed", deduc.xDed, stack) && d(e, "vDed", deduc.vDed, stack, 2);
    return fechar(pai, escrito);
}

// The two tags of the security code go together or not at all.
bool escrever(xml::element& pai, std::string_view tag, grupo::infRespTec const& infRespTec,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "CNPJ", infRespTec.CNPJ, stack) && txt(e, "xContato", infRespTec.xContato, stack) &&
                         txt(e, "email", infRespTec.email, stack) && txt(e, "fone", infRespTec.fone, stack) &&
                         (!infRespTec.CSRT || (u(e, "idCSRT", infRespTec.CSRT->idCSRT, stack, 2) &&
                                               txt(e, "hashCSRT", infRespTec.CSRT->hashCSRT, stack)));
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
