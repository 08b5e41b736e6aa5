#include <velk/erp/tarn/nfe/sefaz_data/requisicao/epec_nfe.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

constexpr char request_name[] = "epec_nfe";
// verAplic of every EPEC this library writes.
constexpr char versao_aplicativo[] = "4.0.0";

}  // namespace

struct epec_nfe::dados {
    estado uf = estado::ac;
    core::datetime dh_emissao;
    std::uint32_t tipo_nf = 0;
    std::string ie;
    destinatario dest;
    xml::element xml;
};

epec_nfe::epec_nfe() = default;
epec_nfe::epec_nfe(epec_nfe const& other) = default;
epec_nfe::epec_nfe(epec_nfe&& other) noexcept = default;
epec_nfe& epec_nfe::operator=(epec_nfe const& other) = default;
epec_nfe& epec_nfe::operator=(epec_nfe&& other) noexcept = default;
epec_nfe::~epec_nfe() = default;

epec_nfe epec_nfe::from_data(estado const& uf, core::datetime const& dh_emissao, unsigned int tipo_nf,
                             std::string const& ie, destinatario const& dest, core::result::stack& stack)
{
    xml::element det_evento;
    std::string orgao_text;
    std::string emissao_text;
    std::string tipo_text;
    if (!detail::novo_det_evento(det_evento, "EPEC", stack) ||
        !detail::escrever_campo(orgao_text, uf, request_name, "estado", stack) ||
        !detail::escrever_campo(emissao_text, dh_emissao, request_name, "dh_emissao", stack) ||
        !detail::escrever_campo(tipo_text, tipo_nf, request_name, "tipo_nf", stack)) {
        return epec_nfe();
    }
    detail::append_text(det_evento, "cOrgaoAutor", orgao_text);
    // The author is always the issuer of the note.
    detail::append_text(det_evento, "tpAutor", "1");
    detail::append_text(det_evento, "verAplic", versao_aplicativo);
    detail::append_text(det_evento, "dhEmi", emissao_text);
    detail::append_text(det_evento, "tpNF", tipo_text);
    detail::append_text(det_evento, "IE", ie);
    det_evento.append_node(dest.get_xml());

    epec_nfe result;
    dados& fields = *result.dados_;
    fields.uf = uf;
    fields.dh_emissao = dh_emissao;
    fields.tipo_nf = tipo_nf;
    fields.ie = ie;
    fields.dest = dest;
    fields.xml = std::move(det_evento);
    return result;
}

epec_nfe epec_nfe::from_xml(xml::element const& det_evento, core::result::stack& stack)
{
    if (!detail::root_is(det_evento, "detEvento", stack)) {
        return epec_nfe();
    }
    auto const found = find_elements_by_path(det_evento, {"cOrgaoAutor", "dhEmi", "tpNF", "IE"});
    epec_nfe result;
    dados& fields = *result.dados_;
    if (!read_required(lookup(found, "cOrgaoAutor"), "detEvento/cOrgaoAutor", fields.uf, stack) ||
        !read_required(lookup(found, "dhEmi"), "detEvento/dhEmi", fields.dh_emissao, stack) ||
        !read_required(lookup(found, "tpNF"), "detEvento/tpNF", fields.tipo_nf, stack) ||
        !read_required(lookup(found, "IE"), "detEvento/IE", fields.ie, stack)) {
        return epec_nfe();
    }
    fields.xml = det_evento;
    return result;
}

epec_nfe epec_nfe::from_xml(xml::document const& documento, core::result::stack& stack)
{
    return read_root<epec_nfe>(documento, stack);
}

estado epec_nfe::get_estado() const { return dados_->uf; }
core::datetime epec_nfe::get_dh_emissao() const { return dados_->dh_emissao; }
std::uint32_t epec_nfe::get_tipo_nf() const { return dados_->tipo_nf; }
std::string epec_nfe::get_ie() const { return dados_->ie; }
epec_nfe::destinatario epec_nfe::get_destinatario() const { return dados_->dest; }
void epec_nfe::set_destinatario(destinatario const& dest) { dados_->dest = dest; }
xml::element epec_nfe::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
