#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_evento.hpp>

#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

struct lote_evento::dados {
    std::uint64_t id_lote = 0;
    std::vector<evento> eventos;
};

lote_evento::lote_evento() = default;
lote_evento::lote_evento(lote_evento const& other) = default;
lote_evento::lote_evento(lote_evento&& other) noexcept = default;
lote_evento& lote_evento::operator=(lote_evento const& other) = default;
lote_evento& lote_evento::operator=(lote_evento&& other) noexcept = default;
lote_evento::~lote_evento() = default;

std::uint64_t lote_evento::get_id_lote() const { return dados_->id_lote; }
void lote_evento::set_id_lote(unsigned long long id_lote) { dados_->id_lote = id_lote; }
void lote_evento::append(evento const& value) { dados_->eventos.push_back(value); }
std::vector<evento> lote_evento::get_eventos() const { return dados_->eventos; }

xml::element lote_evento::get_xml(core::result::stack& stack) const
{
    xml::element root("envEvento");
    if (!root.append_namespace(xml::namespace_id("", namespace_nfe), stack) ||
        !root.append_attribute(xml::attribute("versao", detail::versao_evento), stack)) {
        return root;
    }
    std::string id_text;
    if (!detail::escrever_campo(id_text, dados_->id_lote, "lote_evento", "id_lote", stack)) {
        return root;
    }
    detail::append_text(root, "idLote", id_text);
    for (evento const& each : dados_->eventos) {
        root.append_node(each.get_xml());
    }
    return root;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
