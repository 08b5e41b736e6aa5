#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta_gtin.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct consulta_gtin::dados {
    unsigned int codigo_status = 0;
    std::string versao_aplicativo;
    std::string motivo;
    core::datetime data_recebimento;
    core::optional<std::string> gtin;
    core::optional<unsigned int> tipo_gtin;
    core::optional<std::string> desc_produto;
    core::optional<unsigned int> ncm;
    std::vector<unsigned int> cest;
    xml::element xml;
};

namespace {

constexpr char prefixo[] = "nfeResultMsg/retConsGTIN/";

// The first node of the wrapper, when it is an element.
xml::element const* first_element(xml::element const& root)
{
    auto const children = root.get_node_range();
    return children.begin() == children.end() ? nullptr : children.begin()->as_element();
}

}  // namespace

consulta_gtin::consulta_gtin() = default;
consulta_gtin::consulta_gtin(consulta_gtin const& other) = default;
consulta_gtin::consulta_gtin(consulta_gtin&& other) noexcept = default;
consulta_gtin& consulta_gtin::operator=(consulta_gtin const& other) = default;
consulta_gtin& consulta_gtin::operator=(consulta_gtin&& other) noexcept = default;
consulta_gtin::~consulta_gtin() = default;

unsigned int consulta_gtin::get_codigo_status() const { return dados_->codigo_status; }
std::string consulta_gtin::get_versao_aplicativo() const { return dados_->versao_aplicativo; }
std::string consulta_gtin::get_motivo() const { return dados_->motivo; }
core::datetime consulta_gtin::get_data_recebimento() const { return dados_->data_recebimento; }
core::optional<std::string> consulta_gtin::get_gtin() const { return dados_->gtin; }
core::optional<unsigned int> consulta_gtin::get_tipo_gtin() const { return dados_->tipo_gtin; }
core::optional<std::string> consulta_gtin::get_desc_produto() const { return dados_->desc_produto; }
core::optional<unsigned int> consulta_gtin::get_ncm() const { return dados_->ncm; }
std::vector<unsigned int> consulta_gtin::get_cest() const { return dados_->cest; }
xml::element consulta_gtin::get_xml() const { return dados_->xml; }

consulta_gtin consulta_gtin::from_xml(xml::element const& root, core::result::stack& stack)
{
    consulta_gtin resposta;
    if (root.get_name() != "nfeResultMsg") {
        core::result::fresh<result_category::elemento_ausente>(stack, "nfeResultMsg");
        return resposta;
    }
    dados& campos = *resposta.dados_;
    campos.xml = root;
    xml::element const* const retorno = first_element(root);
    if (retorno == nullptr || retorno->get_name() != "retConsGTIN") {
        core::result::fresh<result_category::elemento_ausente>(stack, "nfeResultMsg/retConsGTIN");
        return resposta;
    }
    auto const found =
        find_elements_by_path(*retorno, {"verAplic", "cStat", "xMotivo", "dhResp", "GTIN", "tpGTIN", "xProd", "NCM"});
    auto const required = [&found, &stack](char const* path, auto& value) {
        return read_required(lookup(found, path), prefixo + std::string(path), value, stack);
    };
    auto const optional = [&found, &stack](char const* path, auto& value) {
        return read_optional(lookup(found, path), prefixo + std::string(path), value, stack);
    };
    if (!required("cStat", campos.codigo_status) || !required("verAplic", campos.versao_aplicativo) ||
        !required("xMotivo", campos.motivo) || !required("dhResp", campos.data_recebimento) ||
        !optional("GTIN", campos.gtin) || !optional("tpGTIN", campos.tipo_gtin) ||
        !optional("xProd", campos.desc_produto) || !optional("NCM", campos.ncm)) {
        return resposta;
    }
    for (xml::node const& child : root.get_node_range()) {
        xml::element const* cest = child.as_element();
        if (cest == nullptr || cest->get_name() != "CEST") {
            continue;
        }
        unsigned int codigo = 0;
        if (!read_required(cest, prefixo + std::string("CEST"), codigo, stack)) {
            break;
        }
        campos.cest.push_back(codigo);
    }
    return resposta;
}

consulta_gtin consulta_gtin::from_xml(xml::document const& document, core::result::stack& stack)
{
    return read_root<consulta_gtin>(document, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
