#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

bool escrever_referencia(xml::element& nfref, grupo::refNFe const& ref, core::result::stack& stack)
{
    return txt(nfref, "refNFe", ref.valor, stack);
}

bool escrever_referencia(xml::element& nfref, grupo::refNF const& ref, core::result::stack& stack)
{
    return escrever(nfref, "refNF", ref, stack);
}

bool escrever_referencia(xml::element& nfref, grupo::refNFP const& ref, core::result::stack& stack)
{
    return escrever(nfref, "refNFP", ref, stack);
}

bool escrever_referencia(xml::element& nfref, grupo::refCTe const& ref, core::result::stack& stack)
{
    return txt(nfref, "refCTe", ref.valor, stack);
}

bool escrever_referencia(xml::element& nfref, grupo::refECF const& ref, core::result::stack& stack)
{
    return escrever(nfref, "refECF", ref, stack);
}

}  // namespace

bool escrever(xml::element& pai, std::string_view tag, grupo::ide const& ide, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        u(e, "cUF", ide.cUF, stack, 0) && u(e, "cNF", ide.cNF, stack, 8) && txt(e, "natOp", ide.natOp, stack) &&
        u(e, "indPag", ide.indPag, stack, 0) &&
        u(e, "mod", ide.mod, stack, 0) && u(e, "serie", ide.serie, stack, 0) && u(e, "nNF", ide.nNF, stack, 0) &&
        dh(e, "dhEmi", ide.dhEmi, stack) && dh(e, "dhSaiEnt", ide.dhSaiEnt, stack) &&
        u(e, "tpNF", ide.tpNF, stack, 0) && u(e, "idDest", ide.idDest, stack, 0) &&
        u(e, "cMunFG", ide.cMunFG, stack, 7) && u(e, "tpImp", ide.tpImp, stack, 0) &&
        u(e, "tpEmis", ide.tpEmis, stack, 0) && u(e, "cDV", ide.cDV, stack, 0) &&
        u(e, "tpAmb", ide.tpAmb, stack, 0) && u(e, "finNFe", ide.finNFe, stack, 0) &&
        u(e, "indFinal", ide.indFinal, stack, 0) && u(e, "indPres", ide.indPres, stack, 0) &&
        u(e, "indIntermed", ide.indIntermed, stack, 0) && u(e, "procEmi", ide.procEmi, stack, 0) &&
        txt(e, "verProc", ide.verProc, stack) && dh(e, "dhCont", ide.dhCont, stack) &&
        txt(e, "xJust", ide.xJust, stack) && escrever(e, "NFref", ide.NFref, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::NFref const& nfref, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        core::visit([&](auto const& ref) { return escrever_referencia(e, ref, stack); }, nfref);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::refNF const& ref, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "cUF", ref.cUF, stack, 2) && u(e, "AAMM", ref.AAMM, stack, 4) &&
                         cnpj(e, ref.CNPJ, stack) && u(e, "mod", ref.mod, stack, 2) &&
                         u(e, "serie", ref.serie, stack, 0) && u(e, "nNF", ref.nNF, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::refNFP const& ref, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "cUF", ref.cUF, stack, 0) && u(e, "AAMM", ref.AAMM, stack, 4) &&
                         escrever_documento(e, ref.documento, stack) && txt(e, "IE", ref.IE, stack) &&
                         u(e, "mod", ref.mod, stack, 2) && u(e, "serie", ref.serie, stack, 0) &&
                         u(e, "nNF", ref.nNF, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::refECF const& ref, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = txt(e, "mod", ref.mod, stack) && u(e, "nECF", ref.nECF, stack, 3) &&
                         u(e, "nCOO", ref.nCOO, stack, 6);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
