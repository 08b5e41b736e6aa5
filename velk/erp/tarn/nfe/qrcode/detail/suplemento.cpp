#include <velk/erp/tarn/nfe/qrcode/detail/suplemento.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/node.hpp>

#include <iterator>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

void remover_filhos(xml::element& pai, std::string const& nome)
{
    xml::mutable_node_range filhos = pai.get_node_range();
    for (auto posicao = filhos.begin(); posicao != filhos.end();) {
        xml::element const* filho = posicao->as_element();
        posicao = filho != nullptr && filho->get_name() == nome ? filhos.erase(posicao) : std::next(posicao);
    }
}

}  // namespace

xml::element& suplemento_de(xml::element& nfe)
{
    if (xml::element* existente = sefaz_data::find_child_element(nfe, "infNFeSupl")) {
        return *existente;
    }
    xml::mutable_node_range filhos = nfe.get_node_range();
    auto posicao = filhos.begin();
    while (posicao != filhos.end() &&
           (posicao->as_element() == nullptr || posicao->as_element()->get_name() != "infNFe")) {
        ++posicao;
    }
    if (posicao != filhos.end()) {
        ++posicao;
    }
    return *filhos.insert(posicao, xml::element("infNFeSupl"))->as_element();
}

// Both tags carry CDATA sections: the ampersands of version 1.00 stay as
// they are.
void por_qrcode(xml::element& suplemento, std::string const& url)
{
    remover_filhos(suplemento, "qrCode");
    xml::mutable_node_range filhos = suplemento.get_node_range();
    filhos.insert(filhos.begin(), xml::element("qrCode", xml::cdata_section(url)));
}

void por_url_chave(xml::element& suplemento, core::optional<std::string> const& url_chave)
{
    remover_filhos(suplemento, "urlChave");
    if (url_chave.has_value()) {
        suplemento.append_node(xml::element("urlChave", xml::cdata_section(*url_chave)));
    }
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail
