#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>
#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/xml/attribute.hpp>
#include <velk/xml/namespace_id.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

bool escrever_infNFe(xml::element& nfe, layout_4_00 const& arvore, core::result::stack& stack)
{
    xml::element& inf = nfe.append_element("infNFe");
    bool const escrito =
        inf.append_attribute(xml::attribute("Id", arvore.Id), stack) &&
        inf.append_attribute(xml::attribute("versao", arvore.versao), stack) &&
        escrever(inf, "ide", arvore.ide, stack) && escrever(inf, "emit", arvore.emit, stack) &&
        escrever(inf, "dest", arvore.dest, stack) && escrever(inf, "retirada", arvore.retirada, stack) &&
        escrever(inf, "entrega", arvore.entrega, stack) && escrever(inf, "autXML", arvore.autXML, stack) &&
        escrever(inf, "det", arvore.det, stack) && escrever(inf, "total", arvore.total, stack) &&
        escrever(inf, "transp", arvore.transp, stack) && escrever(inf, "cobr", arvore.cobr, stack) &&
        escrever(inf, "pag", arvore.pag, stack) && escrever(inf, "infIntermed", arvore.infIntermed, stack) &&
        escrever(inf, "infAdic", arvore.infAdic, stack) && escrever(inf, "exporta", arvore.exporta, stack) &&
        escrever(inf, "compra", arvore.compra, stack) && escrever(inf, "cana", arvore.cana, stack) &&
        escrever(inf, "infRespTec", arvore.infRespTec, stack);
    return fechar(nfe, escrito);
}

}  // namespace

xml::document escrever_layout_4_00(layout_4_00 const& arvore, core::result::stack& stack)
{
    xml::element nfe("NFe");
    xml::document documento;
    if (!nfe.append_namespace(xml::namespace_id("", namespace_nfe), stack) ||
        !escrever_infNFe(nfe, arvore, stack) || !documento.append_node(std::move(nfe), stack)) {
        return {};
    }
    return documento;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
