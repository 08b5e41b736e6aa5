#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_recibo.hpp>

#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

constexpr char request_name[] = "consulta_recibo";

}  // namespace

struct consulta_recibo::dados {
    ambiente tipo_ambiente = ambiente::homologacao;
    versao versao_layout = versao::versao_3_10;
    unsigned long long numero_recibo = 0;
    estado uf = estado::ac;
    modelo modelo_documento = modelo::nfe;
};

consulta_recibo::consulta_recibo() = default;
consulta_recibo::consulta_recibo(consulta_recibo const& other) = default;
consulta_recibo::consulta_recibo(consulta_recibo&& other) noexcept = default;
consulta_recibo& consulta_recibo::operator=(consulta_recibo const& other) = default;
consulta_recibo& consulta_recibo::operator=(consulta_recibo&& other) noexcept = default;
consulta_recibo::~consulta_recibo() = default;

consulta_recibo consulta_recibo::from_data(ambiente tipo_ambiente, versao versao_layout,
                                           unsigned long long numero_recibo, estado uf, modelo modelo_documento)
{
    consulta_recibo result;
    *result.dados_ = dados{tipo_ambiente, versao_layout, numero_recibo, uf, modelo_documento};
    return result;
}

ambiente consulta_recibo::get_ambiente() const { return dados_->tipo_ambiente; }
versao consulta_recibo::get_versao() const { return dados_->versao_layout; }
unsigned long long consulta_recibo::get_numero_recibo() const { return dados_->numero_recibo; }
estado consulta_recibo::get_estado() const { return dados_->uf; }
modelo consulta_recibo::get_modelo_chave() const { return dados_->modelo_documento; }

xml::element consulta_recibo::get_xml(core::result::stack& stack) const
{
    xml::element root("consReciNFe");
    if (!root.append_namespace(xml::namespace_id("", nfe::namespace_nfe), stack)) {
        return root;
    }
    // The field is named with its accent here, unlike in the other requests:
    // callers match the text as it has always been.
    std::string versao_text;
    if (!detail::escrever_campo(versao_text, dados_->versao_layout, request_name, "versão", stack) ||
        !root.append_attribute(xml::attribute("versao", versao_text), stack)) {
        return root;
    }
    std::string ambiente_text;
    if (!detail::escrever_ambiente(ambiente_text, dados_->tipo_ambiente, request_name, stack)) {
        return root;
    }
    root.append_node(xml::element("tpAmb", xml::text(ambiente_text)));
    std::string recibo_text;
    if (!detail::escrever_campo(recibo_text, dados_->numero_recibo, request_name, "numero_recibo", stack)) {
        return root;
    }
    root.append_node(xml::element("nRec", xml::text(recibo_text)));
    return root;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
