#include <velk/erp/tarn/nfe/servico/evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/servico_evento_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

namespace {

std::vector<std::string> const& result_tags()
{
    static std::vector<std::string> const tags = {"nfeRecepcaoEventoResult", "nfeResultMsg"};
    return tags;
}

// The version of the event layout, whatever the layout of the notes.
constexpr char versao_dados[] = "1.00";

// Only an NFC-e issued normally may be cancelled by substitution, and only by
// one issued in offline contingency. Fresh reports: the checks come before
// anything is built.
bool substituicao_valida(chave_acesso const& chave, sefaz_data::requisicao::cancelamento const& cancelamento,
                         core::result::stack& result)
{
    if (cancelamento.get_tipo_cancelamento() == sefaz_data::requisicao::tipo_cancelamento::normal) {
        return true;
    }
    if (chave.get_modelo_chave() != modelo::nfce) {
        core::result::fresh<servico_result_category::modelo_diferente>(result, modelo::nfce, chave.get_modelo_chave());
        return false;
    }
    if (chave.get_tipo_emissao() != fiscal::tipo_emissao::normal) {
        core::result::fresh<servico_result_category::tipo_emissao_diferente>(result, fiscal::tipo_emissao::normal,
                                                         chave.get_tipo_emissao());
        return false;
    }
    core::optional<chave_acesso> const substituta = cancelamento.get_chave_acesso_substituta();
    if (!substituta.has_value()) {
        core::result::fresh<servico_result_category::chave_acesso_invalida>(result);
        return false;
    }
    if (substituta->get_tipo_emissao() != fiscal::tipo_emissao::contingencia_offline_nfce) {
        core::result::fresh<servico_result_category::tipo_emissao_diferente>(result, fiscal::tipo_emissao::contingencia_offline_nfce,
                                                         substituta->get_tipo_emissao());
        return false;
    }
    return true;
}

}  // namespace

void evento::set_versao(versao value) { versao_ = value; }
versao evento::get_versao() const { return versao_; }

evento::resposta_type evento::executar(requisicao_type const& requisicao, web_server_info const& servidor,
                                       core::result::stack& result) const
{
    std::vector<sefaz_data::requisicao::evento> const eventos = requisicao.get_eventos();
    if (eventos.empty()) {
        core::result::fresh<servico_evento_result_category::sem_requisicao>(result);
        return resposta_type();
    }
    for (sefaz_data::requisicao::evento const& each : eventos) {
        sefaz_data::requisicao::evento::informacoes const payload = each.get_informacoes_evento();
        if (auto const* cancelamento = std::get_if<sefaz_data::requisicao::cancelamento>(&payload.base())) {
            substituicao_valida(each.get_chave_acesso(), *cancelamento, result);
        }
        if (result.has_failed()) {
            return resposta_type();
        }
    }
    xml::document const request = request_document(requisicao, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    xml::document const answer = exchange(request, eventos.front().get_chave_acesso().get_estado(), versao_dados,
                                          servidor, result_tags(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return read_response<resposta_type>(answer, result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
