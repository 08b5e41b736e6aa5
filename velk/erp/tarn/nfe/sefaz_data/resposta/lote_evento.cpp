#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct lote_evento::dados {
    std::uint32_t codigo_status = 0;
    std::string motivo;
    std::vector<resposta_evento> eventos;
    xml::element xml;
};

lote_evento::lote_evento() = default;
lote_evento::lote_evento(lote_evento const& other) = default;
lote_evento::lote_evento(lote_evento&& other) noexcept = default;
lote_evento& lote_evento::operator=(lote_evento const& other) = default;
lote_evento& lote_evento::operator=(lote_evento&& other) noexcept = default;
lote_evento::~lote_evento() = default;

std::uint32_t lote_evento::get_codigo_status() const { return dados_->codigo_status; }
std::string lote_evento::get_motivo() const { return dados_->motivo; }
std::vector<resposta_evento> lote_evento::get_eventos() const { return dados_->eventos; }
xml::element lote_evento::get_xml() const { return dados_->xml; }

lote_evento lote_evento::from_xml(xml::element const& root, core::result::stack& stack)
{
    lote_evento resposta;
    dados& fields = *resposta.dados_;
    fields.xml = root;
    if (root.get_name() != "retEnvEvento") {
        core::result::fresh<result_category::elemento_ausente>(stack, "retEnvEvento");
        return resposta;
    }
    auto const found = find_elements_by_path(root, {"cStat", "xMotivo"});
    if (!read_required(lookup(found, "cStat"), root.get_name() + "/cStat", fields.codigo_status, stack) ||
        !read_required(lookup(found, "xMotivo"), root.get_name() + "/xMotivo", fields.motivo, stack)) {
        return resposta;
    }
    for (xml::node const& child : root.get_node_range()) {
        xml::element const* ret_evento = child.as_element();
        if (ret_evento == nullptr || ret_evento->get_name() != "retEvento") {
            continue;
        }
        fields.eventos.push_back(resposta_evento_from_xml(*ret_evento, stack));
        if (stack.has_failed()) {
            return lote_evento();
        }
    }
    return resposta;
}

lote_evento lote_evento::from_xml(xml::document const& documento, core::result::stack& stack)
{
    return read_root<lote_evento>(documento, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
