// Transport: the freight mode, the carrier, the ICMS withheld on the
// service, the vehicles and the volumes.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string_view tag, grupo::transp const& transp, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        u(e, "modFrete", transp.modFrete, stack, 0) && escrever(e, "transporta", transp.transporta, stack) &&
        escrever(e, "retTransp", transp.retTransp, stack) && escrever(e, "veicTransp", transp.veicTransp, stack) &&
        escrever(e, "reboque", transp.reboque, stack) && txt(e, "vagao", transp.vagao, stack) &&
        txt(e, "balsa", transp.balsa, stack) && escrever(e, "vol", transp.vol, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::transporta const& t, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = (!t.documento || escrever_documento(e, *t.documento, stack)) &&
                         txt(e, "xNome", t.xNome, stack) && txt(e, "IE", t.IE, stack) &&
                         txt(e, "xEnder", t.xEnder, stack) && txt(e, "xMun", t.xMun, stack) &&
                         txt(e, "UF", t.UF, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::retTransp const& r, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = d(e, "vServ", r.vServ, stack, 2) && d(e, "vBCRet", r.vBCRet, stack, 2) &&
                         d(e, "pICMSRet", r.pICMSRet, stack, 4) && d(e, "vICMSRet", r.vICMSRet, stack, 2) &&
                         u(e, "CFOP", r.CFOP, stack, 4) && u(e, "cMunFG", r.cMunFG, stack, 7);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::veicTransp const& v, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "placa", v.placa, stack) && txt(e, "UF", v.UF, stack) && txt(e, "RNTC", v.RNTC, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::vol const& v, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "qVol", v.qVol, stack, 0) && txt(e, "esp", v.esp, stack) &&
                         txt(e, "marca", v.marca, stack) && txt(e, "nVol", v.nVol, stack) &&
                         d(e, "pesoL", v.pesoL, stack, 3) && d(e, "pesoB", v.pesoB, stack, 3) &&
                         escrever(e, "lacres", v.lacres, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::lacres const& lacres, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "nLacre", lacres.nLacre, stack);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
