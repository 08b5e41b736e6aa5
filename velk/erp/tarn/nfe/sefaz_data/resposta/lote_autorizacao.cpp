#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct lote_autorizacao::dados {
    unsigned int codigo_status = 0;
    std::string motivo;
    std::string versao_aplicativo;
    core::datetime data_recebimento;
    core::optional<unsigned long long> numero_recibo;
    std::vector<protocolo_nfe> protocolos;
    xml::element xml;
};

lote_autorizacao::lote_autorizacao() = default;
lote_autorizacao::lote_autorizacao(lote_autorizacao const& other) = default;
lote_autorizacao::lote_autorizacao(lote_autorizacao&& other) noexcept = default;
lote_autorizacao& lote_autorizacao::operator=(lote_autorizacao const& other) = default;
lote_autorizacao& lote_autorizacao::operator=(lote_autorizacao&& other) noexcept = default;
lote_autorizacao::~lote_autorizacao() = default;

unsigned int lote_autorizacao::get_codigo_status() const { return dados_->codigo_status; }
std::string lote_autorizacao::get_motivo() const { return dados_->motivo; }
std::string lote_autorizacao::get_versao_aplicativo() const { return dados_->versao_aplicativo; }
core::datetime lote_autorizacao::get_data_recebimento() const { return dados_->data_recebimento; }
core::optional<unsigned long long> lote_autorizacao::get_numero_recibo() const { return dados_->numero_recibo; }
std::vector<protocolo_nfe> lote_autorizacao::get_protocolos() const { return dados_->protocolos; }
xml::element lote_autorizacao::get_xml() const { return dados_->xml; }

lote_autorizacao lote_autorizacao::from_xml(xml::element const& root, core::result::stack& stack)
{
    lote_autorizacao resposta;
    dados& campos = *resposta.dados_;
    campos.xml = root;
    std::string const& raiz = root.get_name();
    if (raiz != "retEnviNFe" && raiz != "retConsReciNFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "retEnviNFe");
        return resposta;
    }
    auto const found = find_elements_by_path(root, {"cStat", "xMotivo", "verAplic", "dhRecbto", "infRec/nRec"});
    auto const required = [&](char const* path, auto& value) {
        return read_required(lookup(found, path), raiz + "/" + path, value, stack);
    };
    if (!required("cStat", campos.codigo_status) || !required("xMotivo", campos.motivo) ||
        !required("verAplic", campos.versao_aplicativo) || !required("dhRecbto", campos.data_recebimento) ||
        !read_optional(lookup(found, "infRec/nRec"), raiz + "infRec/nRec", campos.numero_recibo, stack)) {
        return resposta;
    }
    for (xml::node const& child : root.get_node_range()) {
        xml::element const* protocolo = child.as_element();
        if (protocolo == nullptr || protocolo->get_name() != "protNFe") {
            continue;
        }
        protocolo_nfe read = protocolo_nfe::from_xml(*protocolo, stack);
        if (stack.has_failed()) {
            break;
        }
        campos.protocolos.push_back(std::move(read));
    }
    return resposta;
}

lote_autorizacao lote_autorizacao::from_xml(xml::document const& document, core::result::stack& stack)
{
    lote_autorizacao resposta = read_root<lote_autorizacao>(document, stack);
    if (stack.has_failed()) {
        return lote_autorizacao();
    }
    return resposta;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
