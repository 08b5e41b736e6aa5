#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_gtin.hpp>

#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

struct consulta_gtin::dados {
    sefaz_data::detail::versao_layout_consulta_gtin versao_layout =
        sefaz_data::detail::versao_layout_consulta_gtin::versao_1_00;
    std::string gtin;
};

consulta_gtin::consulta_gtin() = default;
consulta_gtin::consulta_gtin(consulta_gtin const& other) = default;
consulta_gtin::consulta_gtin(consulta_gtin&& other) noexcept = default;
consulta_gtin& consulta_gtin::operator=(consulta_gtin const& other) = default;
consulta_gtin& consulta_gtin::operator=(consulta_gtin&& other) noexcept = default;
consulta_gtin::~consulta_gtin() = default;

consulta_gtin consulta_gtin::from_data(std::string const& gtin)
{
    consulta_gtin result;
    result.dados_->gtin = gtin;
    return result;
}

sefaz_data::detail::versao_layout_consulta_gtin consulta_gtin::get_versao() const { return dados_->versao_layout; }
std::string consulta_gtin::get_gtin() const { return dados_->gtin; }
void consulta_gtin::set_gtin(std::string const& gtin) { dados_->gtin = gtin; }

xml::element consulta_gtin::get_xml(core::result::stack& stack) const
{
    xml::element root("consGTIN");
    std::string versao_text;
    if (!root.append_namespace(xml::namespace_id("", nfe::namespace_nfe), stack) ||
        !detail::escrever_campo(versao_text, dados_->versao_layout, "consulta_gtin", "versao_layout", stack) ||
        !root.append_attribute(xml::attribute("versao", versao_text), stack)) {
        return root;
    }
    root.append_node(xml::element("GTIN", xml::text(dados_->gtin)));
    return root;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
