#include <velk/erp/tarn/nfe/qrcode/adicionar_url_qrcode.hpp>

#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe {

bool adicionar_url_qrcode(informacoes_adicionais const& informacoes, xml::document& documento,
                          std::string const& id_token, std::string const& csc, core::result::stack& stack)
{
    std::string const url = obter_url_qrcode(informacoes, documento, id_token, csc, stack);
    if (stack.has_failed()) {
        return false;
    }
    xml::element* raiz = documento.get_root_element();
    if (raiz == nullptr) {
        return false;
    }
    xml::element suplemento("infNFeSupl");
    // CDATA keeps the ampersands of version 1.00 as they are.
    suplemento.append_node(xml::element("qrCode", xml::cdata_section(url)));

    xml::mutable_node_range filhos = raiz->get_node_range();
    for (auto posicao = filhos.begin(); posicao != filhos.end(); ++posicao) {
        xml::element const* filho = posicao->as_element();
        if (filho != nullptr && filho->get_name() == "infNFe") {
            filhos.insert(posicao, std::move(suplemento));
            break;
        }
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe
