#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/xml/node.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct consulta::dados {
    unsigned int codigo_status = 0;
    std::string motivo;
    std::string versao_aplicativo;
    core::datetime data_recebimento;
    core::optional<chave_acesso> chave;
    core::optional<protocolo_nfe> protocolo;
    std::vector<distribuicao::evento> eventos;
    xml::element xml;
};

consulta::consulta() = default;
consulta::consulta(consulta const& other) = default;
consulta::consulta(consulta&& other) noexcept = default;
consulta& consulta::operator=(consulta const& other) = default;
consulta& consulta::operator=(consulta&& other) noexcept = default;
consulta::~consulta() = default;

unsigned int consulta::get_codigo_status() const { return dados_->codigo_status; }
std::string consulta::get_motivo() const { return dados_->motivo; }
std::string consulta::get_versao_aplicativo() const { return dados_->versao_aplicativo; }
core::datetime consulta::get_data_recebimento() const { return dados_->data_recebimento; }
core::optional<chave_acesso> consulta::get_chave_acesso() const { return dados_->chave; }
core::optional<protocolo_nfe> consulta::get_protocolo_nfe() const { return dados_->protocolo; }
std::vector<distribuicao::evento> consulta::get_eventos() const { return dados_->eventos; }
xml::element consulta::get_xml() const { return dados_->xml; }

consulta consulta::from_xml(xml::element const& root, core::result::stack& stack)
{
    consulta resposta;
    dados& campos = *resposta.dados_;
    campos.xml = root;
    if (root.get_name() != "retConsSitNFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "retConsSitNFe");
        return resposta;
    }
    auto const found = find_elements_by_path(root, {"cStat", "xMotivo", "dhRecbto", "chNFe", "protNFe"});
    auto const required = [&found, &stack](char const* path, auto& value) {
        return read_required(lookup(found, path), std::string("retConsSitNFe/") + path, value, stack);
    };
    // verAplic is not read: the field has always stayed empty here, and callers
    // take the application's version from the protocol.
    if (!required("cStat", campos.codigo_status) || !required("xMotivo", campos.motivo) ||
        !required("dhRecbto", campos.data_recebimento) ||
        !read_optional(lookup(found, "chNFe"), "retConsSitNFe/chNFe", campos.chave, stack)) {
        return resposta;
    }
    if (xml::element const* const protocolo = lookup(found, "protNFe")) {
        protocolo_nfe read = protocolo_nfe::from_xml(*protocolo, stack);
        if (stack.has_failed()) {
            return resposta;
        }
        campos.protocolo = std::move(read);
    }
    for (xml::node const& filho : root.get_node_range()) {
        xml::element const* elemento = filho.as_element();
        if (elemento == nullptr || elemento->get_name() != "procEventoNFe") {
            continue;
        }
        distribuicao::evento evento = distribuicao::evento::from_xml(*elemento, stack);
        if (stack.has_failed()) {
            return resposta;
        }
        campos.eventos.push_back(std::move(evento));
    }
    return resposta;
}

consulta consulta::from_xml(xml::document const& document, core::result::stack& stack)
{
    return read_root<consulta>(document, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
