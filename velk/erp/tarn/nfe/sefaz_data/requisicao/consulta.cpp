#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta.hpp>

#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

constexpr char request_name[] = "consulta";

}  // namespace

struct consulta::dados {
    chave_acesso chave;
    versao versao_layout = versao::versao_3_10;
    ambiente tipo_ambiente = ambiente::homologacao;
};

consulta::consulta() = default;
consulta::consulta(consulta const& other) = default;
consulta::consulta(consulta&& other) noexcept = default;
consulta& consulta::operator=(consulta const& other) = default;
consulta& consulta::operator=(consulta&& other) noexcept = default;
consulta::~consulta() = default;

consulta consulta::from_data(chave_acesso const& chave, versao const& versao_layout, ambiente const& tipo_ambiente)
{
    consulta result;
    result.dados_->chave = chave;
    result.dados_->versao_layout = versao_layout;
    result.dados_->tipo_ambiente = tipo_ambiente;
    return result;
}

chave_acesso consulta::get_chave_acesso() const { return dados_->chave; }
void consulta::set_chave_acesso(chave_acesso const& chave) { dados_->chave = chave; }
versao consulta::get_versao() const { return dados_->versao_layout; }
void consulta::set_versao(versao value) { dados_->versao_layout = value; }
ambiente consulta::get_ambiente() const { return dados_->tipo_ambiente; }
void consulta::set_ambiente(ambiente value) { dados_->tipo_ambiente = value; }

xml::element consulta::get_xml(core::result::stack& stack) const
{
    xml::element root("consSitNFe");
    std::string versao_text;
    if (!detail::escrever_campo(versao_text, dados_->versao_layout, request_name, "versao", stack) ||
        !root.append_attribute(xml::attribute("versao", versao_text), stack) ||
        !root.append_namespace(xml::namespace_id("", nfe::namespace_nfe), stack)) {
        return root;
    }
    std::string ambiente_text;
    if (!detail::escrever_ambiente(ambiente_text, dados_->tipo_ambiente, request_name, stack)) {
        return root;
    }
    root.append_node(xml::element("tpAmb", xml::text(ambiente_text)));
    root.append_node(xml::element("xServ", xml::text("CONSULTAR")));
    std::string chave_text;
    if (!detail::escrever_campo(chave_text, dados_->chave, request_name, "chave_acesso", stack)) {
        return root;
    }
    root.append_node(xml::element("chNFe", xml::text(chave_text)));
    return root;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
