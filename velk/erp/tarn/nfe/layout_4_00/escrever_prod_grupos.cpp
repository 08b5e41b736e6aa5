#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string_view tag, grupo::DI const& di, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        txt(e, "nDI", di.nDI, stack) && dt(e, "dDI", di.dDI, stack) && txt(e, "xLocDesemb", di.xLocDesemb, stack) &&
        txt(e, "UFDesemb", di.UFDesemb, stack) && dt(e, "dDesemb", di.dDesemb, stack) &&
        u(e, "tpViaTransp", di.tpViaTransp, stack, 0) && d(e, "vAFRMM", di.vAFRMM, stack, 2) &&
        u(e, "tpIntermedio", di.tpIntermedio, stack, 0) && (!di.CNPJ || cnpj(e, *di.CNPJ, stack)) &&
        txt(e, "UFTerceiro", di.UFTerceiro, stack) && txt(e, "cExportador", di.cExportador, stack) &&
        escrever(e, "adi", di.adi, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::adi const& adi, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "nAdicao", adi.nAdicao, stack, 0) && u(e, "nSeqAdic", adi.nSeqAdic, stack, 0) &&
                         txt(e, "cFabricante", adi.cFabricante, stack) && d(e, "vDescDI", adi.vDescDI, stack, 2) &&
                         u(e, "nDraw", adi.nDraw, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::detExport const& detExport,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        u(e, "nDraw", detExport.nDraw, stack, 0) && escrever(e, "exportInd", detExport.exportInd, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::exportInd const& exportInd,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "nRE", exportInd.nRE, stack, 0) && txt(e, "chNFe", exportInd.chNFe, stack) &&
                         d(e, "qExport", exportInd.qExport, stack, 4);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::rastro const& rastro, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "nLote", rastro.nLote, stack) && d(e, "qLote", rastro.qLote, stack, 3) &&
                         dt(e, "dFab", rastro.dFab, stack) && dt(e, "dVal", rastro.dVal, stack) &&
                         txt(e, "cAgreg", rastro.cAgreg, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::veicProd const& v, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        u(e, "tpOp", v.tpOp, stack, 0) && txt(e, "chassi", v.chassi, stack) && txt(e, "cCor", v.cCor, stack) &&
        txt(e, "xCor", v.xCor, stack) && txt(e, "pot", v.pot, stack) && txt(e, "cilin", v.cilin, stack) &&
        d(e, "pesoL", v.pesoL, stack, 4) && d(e, "pesoB", v.pesoB, stack, 4) && txt(e, "nSerie", v.nSerie, stack) &&
        txt(e, "tpComb", v.tpComb, stack) && txt(e, "nMotor", v.nMotor, stack) && d(e, "CMT", v.CMT, stack, 4) &&
        txt(e, "dist", v.dist, stack) && u(e, "anoMod", v.anoMod, stack, 0) && u(e, "anoFab", v.anoFab, stack, 0) &&
        txt(e, "tpPint", v.tpPint, stack) && u(e, "tpVeic", v.tpVeic, stack, 0) &&
        u(e, "espVeic", v.espVeic, stack, 0) && txt(e, "VIN", v.VIN, stack) &&
        u(e, "condVeic", v.condVeic, stack, 0) && u(e, "cMod", v.cMod, stack, 0) &&
        u(e, "cCorDENATRAN", v.cCorDENATRAN, stack, 0) && u(e, "lota", v.lota, stack, 0) &&
        u(e, "tpRest", v.tpRest, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::med const& med, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = (!med.lote || (txt(e, "nLote", med.lote->nLote, stack) &&
                                        d(e, "qLote", med.lote->qLote, stack, 3) &&
                                        dt(e, "dFab", med.lote->dFab, stack) &&
                                        dt(e, "dVal", med.lote->dVal, stack))) &&
                         txt(e, "cProdANVISA", med.cProdANVISA, stack) &&
                         txt(e, "xMotivoIsencao", med.xMotivoIsencao, stack) && d(e, "vPMC", med.vPMC, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::arma const& arma, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "tpArma", arma.tpArma, stack, 0) && txt(e, "nSerie", arma.nSerie, stack) &&
                         txt(e, "nCano", arma.nCano, stack) && txt(e, "descr", arma.descr, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::comb const& comb, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        u(e, "cProdANP", comb.cProdANP, stack, 9) && d(e, "pMixGN", comb.pMixGN, stack, 4) &&
        txt(e, "descANP", comb.descANP, stack) &&
        d(e, "pGLP", comb.pGLP, stack, 4) && d(e, "pGNn", comb.pGNn, stack, 4) && d(e, "pGNi", comb.pGNi, stack, 4) &&
        d(e, "vPart", comb.vPart, stack, 2) && txt(e, "CODIF", comb.CODIF, stack) &&
        d(e, "qTemp", comb.qTemp, stack, 4) && txt(e, "UFCons", comb.UFCons, stack) &&
        escrever(e, "CIDE", comb.CIDE, stack) && escrever(e, "encerrante", comb.encerrante, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::CIDE const& cide, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "qBCProd", cide.qBCProd, stack, 4) && d(e, "vAliqProd", cide.vAliqProd, stack, 4) &&
                         d(e, "vCIDE", cide.vCIDE, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::encerrante const& encerrante,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "nBico", encerrante.nBico, stack, 0) && u(e, "nBomba", encerrante.nBomba, stack, 0) &&
                         u(e, "nTanque", encerrante.nTanque, stack, 0) &&
                         d(e, "vEncIni", encerrante.vEncIni, stack, 3) && d(e, "vEncFin", encerrante.vEncFin, stack, 3);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
