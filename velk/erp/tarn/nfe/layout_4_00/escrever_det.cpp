#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/attribute.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

bool escrever_especifico(xml::element& prod, grupo::veicProd const& veiculo, core::result::stack& stack)
{
    return escrever(prod, "veicProd", veiculo, stack);
}

bool escrever_especifico(xml::element& prod, std::vector<grupo::med> const& medicamentos, core::result::stack& stack)
{
    return escrever(prod, "med", medicamentos, stack);
}

bool escrever_especifico(xml::element& prod, std::vector<grupo::arma> const& armas, core::result::stack& stack)
{
    return escrever(prod, "arma", armas, stack);
}

bool escrever_especifico(xml::element& prod, grupo::comb const& combustivel, core::result::stack& stack)
{
    return escrever(prod, "comb", combustivel, stack);
}

bool escrever_especifico(xml::element& prod, grupo::nRECOPI const& recopi, core::result::stack& stack)
{
    return txt(prod, "nRECOPI", recopi.valor, stack);
}

bool escrever_especifico(xml::element& prod, core::optional<grupo::tipo_produto> const& especifico,
                         core::result::stack& stack)
{
    return !especifico ||
           core::visit([&](auto const& grupo) { return escrever_especifico(prod, grupo, stack); }, *especifico);
}

// EXTIPI has two digits up to 98 and three from 99 on.
bool escrever_EXTIPI(xml::element& prod, core::optional<std::uint16_t> const& extipi, core::result::stack& stack)
{
    return !extipi || u(prod, "EXTIPI", *extipi, stack, *extipi <= 98 ? 2 : 3);
}

bool escrever_NVE(xml::element& prod, std::vector<std::string> const& nve, core::result::stack& stack)
{
    for (std::string const& codigo : nve) {
        if (!txt(prod, "NVE", codigo, stack)) {
            return false;
        }
    }
    return true;
}

bool escrever_nItem(xml::element& det, std::uint16_t nItem, core::result::stack& stack)
{
    std::string const numero = core::make_string(nItem, stack);
    if (stack.has_failed()) {
        core::result::chain<sefaz_data::result_category::valor_atributo_invalido>(stack, "nItem");
        return false;
    }
    return det.append_attribute(xml::attribute("nItem", numero), stack);
}

}  // namespace

bool escrever(xml::element& pai, std::string_view tag, grupo::det const& det, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_nItem(e, det.nItem, stack) && escrever(e, "prod", det.prod, stack) &&
                         escrever(e, "imposto", det.imposto, stack) &&
                         escrever(e, "impostoDevol", det.impostoDevol, stack) &&
                         txt(e, "infAdProd", det.infAdProd, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::prod const& prod, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        txt(e, "cProd", prod.cProd, stack) && txt(e, "cEAN", prod.cEAN, stack) && txt(e, "xProd", prod.xProd, stack) &&
        u(e, "NCM", prod.NCM, stack, 8) && escrever_NVE(e, prod.NVE, stack) && u(e, "CEST", prod.CEST, stack, 7) &&
        txt(e, "indEscala", prod.indEscala, stack) && u(e, "CNPJFab", prod.CNPJFab, stack, 14) &&
        txt(e, "cBenef", prod.cBenef, stack) && escrever_EXTIPI(e, prod.EXTIPI, stack) &&
        u(e, "CFOP", prod.CFOP, stack, 4) && txt(e, "uCom", prod.uCom, stack) && d(e, "qCom", prod.qCom, stack, 4) &&
        d(e, "vUnCom", prod.vUnCom, stack, 10) && d(e, "vProd", prod.vProd, stack, 2) &&
        txt(e, "cEANTrib", prod.cEANTrib, stack) && txt(e, "uTrib", prod.uTrib, stack) &&
        d(e, "qTrib", prod.qTrib, stack, 4) && d(e, "vUnTrib", prod.vUnTrib, stack, 10) &&
        d(e, "vFrete", prod.vFrete, stack, 2) && d(e, "vSeg", prod.vSeg, stack, 2) &&
        d(e, "vDesc", prod.vDesc, stack, 2) && d(e, "vOutro", prod.vOutro, stack, 2) &&
        u(e, "indTot", prod.indTot, stack, 0) && escrever(e, "DI", prod.DI, stack) &&
        escrever(e, "detExport", prod.detExport, stack) && txt(e, "xPed", prod.xPed, stack) &&
        u(e, "nItemPed", prod.nItemPed, stack, 0) && txt(e, "nFCI", prod.nFCI, stack) &&
        escrever(e, "rastro", prod.rastro, stack) && escrever_especifico(e, prod.especifico, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::impostoDevol const& impostoDevol,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "pDevol", impostoDevol.pDevol, stack, 2) && escrever(e, "IPI", impostoDevol.IPI, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::IPIDevol const& ipi, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vIPIDevol", ipi.vIPIDevol, stack, 2);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
