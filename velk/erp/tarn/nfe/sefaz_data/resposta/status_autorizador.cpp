#include <velk/erp/tarn/nfe/sefaz_data/resposta/status_autorizador.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct status_autorizador::impl {
    std::int32_t codigo_status = 0;
    std::string motivo;
    core::datetime data_recebimento;
    core::optional<core::datetime> data_retorno;
    core::optional<std::int16_t> tempo_medio;
    std::string informacoes_adicionais;
    xml::element xml;
};

status_autorizador::status_autorizador() : impl_(std::make_unique<impl>()) {}
status_autorizador::status_autorizador(status_autorizador const& other) : impl_(std::make_unique<impl>(*other.impl_))
{
}
status_autorizador::status_autorizador(status_autorizador&& other) noexcept = default;
status_autorizador& status_autorizador::operator=(status_autorizador const& other)
{
    if (this != &other) {
        impl_ = std::make_unique<impl>(*other.impl_);
    }
    return *this;
}
status_autorizador& status_autorizador::operator=(status_autorizador&& other) noexcept = default;
status_autorizador::~status_autorizador() = default;

std::int32_t status_autorizador::get_codigo_status() const { return impl_->codigo_status; }
std::string status_autorizador::get_motivo() const { return impl_->motivo; }
core::datetime status_autorizador::get_data_recebimento() const { return impl_->data_recebimento; }
core::optional<core::datetime> status_autorizador::get_data_retorno() const { return impl_->data_retorno; }
core::optional<std::int16_t> status_autorizador::get_tempo_medio() const { return impl_->tempo_medio; }
std::string status_autorizador::get_informacoes_adicionais() const { return impl_->informacoes_adicionais; }
xml::element status_autorizador::get_xml() const { return impl_->xml; }

status_autorizador status_autorizador::from_xml(xml::element const& root, core::result::stack& result)
{
    status_autorizador resposta;
    impl& fields = *resposta.impl_;
    fields.xml = root;
    if (root.get_name() != "retConsStatServ") {
        core::result::fresh<result_category::elemento_ausente>(result, "retConsStatServ");
        return resposta;
    }
    auto const found = find_elements_by_path(root, {"cStat", "xMotivo", "dhRecbto", "dhRetorno", "tMed", "xObs"});
    // dhRetorno is reported under the path of dhRecbto, as callers of this
    // answer have always matched it.
    bool const read = read_required(lookup(found, "cStat"), "retConsStatServ/cStat", fields.codigo_status, result) &&
                      read_required(lookup(found, "xMotivo"), "retConsStatServ/xMotivo", fields.motivo, result) &&
                      read_required(lookup(found, "dhRecbto"), "retConsStatServ/dhRecbto", fields.data_recebimento,
                                    result) &&
                      read_optional(lookup(found, "dhRetorno"), "retConsStatServ/dhRecbto", fields.data_retorno,
                                    result) &&
                      read_optional(lookup(found, "tMed"), "retConsStatServ/tMed", fields.tempo_medio, result);
    if (xml::element const* const observacao = lookup(found, "xObs"); read && observacao != nullptr) {
        fields.informacoes_adicionais = observacao->get_contents();
    }
    return resposta;
}

status_autorizador status_autorizador::from_xml(xml::document const& document, core::result::stack& result)
{
    return read_root<status_autorizador>(document, result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
