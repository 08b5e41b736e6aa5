// The supplement of an NFC-e (infNFeSupl): its QR code and its urlChave.
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/documento_fiscal_dados.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

// infNFeSupl of the NFe element, appended as its last child when absent.
xml::element& suplemento_de(xml::element& nfe)
{
    if (xml::element* existente = find_child_element(nfe, "infNFeSupl")) {
        return *existente;
    }
    xml::mutable_node_range filhos = nfe.get_node_range();
    return *filhos.insert(filhos.end(), xml::element("infNFeSupl"))->as_element();
}

void remover_filhos(xml::element& pai, std::string const& nome)
{
    xml::mutable_node_range filhos = pai.get_node_range();
    for (auto posicao = filhos.begin(); posicao != filhos.end();) {
        xml::element const* filho = posicao->as_element();
        posicao = filho != nullptr && filho->get_name() == nome ? filhos.erase(posicao) : std::next(posicao);
    }
}

}  // namespace

void documento_fiscal::gerar_qrcode(informacoes_adicionais const& informacoes, std::string const& id_token,
                                    std::string const& csc, core::result::stack& stack)
{
    dados& data = *dados_;
    xml::element& suplemento = suplemento_de(data.xml);

    // The address is made from the tree as it stands, through the same
    // reading as any document handed in.
    xml::document documento;
    if (!documento.append_node(data.xml, stack)) {
        return;
    }
    std::string url = obter_url_qrcode(informacoes, documento, id_token, csc, stack);
    if (stack.has_failed()) {
        return;
    }
    remover_filhos(suplemento, "qrCode");
    // First in infNFeSupl, ahead of a urlChave; CDATA keeps the ampersands
    // of version 1.00 as they are.
    xml::mutable_node_range filhos = suplemento.get_node_range();
    filhos.insert(filhos.begin(), xml::element("qrCode", xml::cdata_section(url)));
    data.campos.qrcode_value = std::move(url);
}

void documento_fiscal::adicionar_url_chave(informacoes_adicionais const& informacoes)
{
    dados& data = *dados_;
    xml::element& suplemento = suplemento_de(data.xml);
    remover_filhos(suplemento, "urlChave");
    data.campos.url_chave = informacoes.get_url_chave();
    if (data.campos.url_chave.has_value()) {
        suplemento.append_node(xml::element("urlChave", xml::cdata_section(*data.campos.url_chave)));
    }
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
