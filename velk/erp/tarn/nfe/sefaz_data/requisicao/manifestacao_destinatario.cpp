#include <velk/erp/tarn/nfe/sefaz_data/requisicao/manifestacao_destinatario.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

#include <iterator>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

// By type: descEvento, and whether the layout of the type has xJust.
struct forma_manifestacao {
    char const* descricao;
    bool com_justificativa;
};

constexpr forma_manifestacao formas[] = {
    {"Confirmacao da Operacao", false},
    {"Ciencia da Operacao", false},
    {"Desconhecimento da Operacao", true},
    {"Operacao nao Realizada", true},
};

}  // namespace

struct manifestacao_destinatario::dados {
    xml::element xml;
    core::optional<std::string> justificativa;
    tipo_manifestacao tipo = tipo_manifestacao::confirmacao_operacao;
};

manifestacao_destinatario::manifestacao_destinatario() = default;
manifestacao_destinatario::manifestacao_destinatario(manifestacao_destinatario const& other) = default;
manifestacao_destinatario::manifestacao_destinatario(manifestacao_destinatario&& other) noexcept = default;
manifestacao_destinatario& manifestacao_destinatario::operator=(manifestacao_destinatario const& other) = default;
manifestacao_destinatario& manifestacao_destinatario::operator=(manifestacao_destinatario&& other) noexcept =
    default;
manifestacao_destinatario::~manifestacao_destinatario() = default;

manifestacao_destinatario manifestacao_destinatario::from_data(tipo_manifestacao tipo,
                                                               std::string const& justificativa,
                                                               core::result::stack& stack)
{
    auto const index = static_cast<unsigned>(tipo);
    if (index >= std::size(formas)) {
        core::result::fresh<result_category::tipo_evento_diferente>(stack, "Manifestação do destinatário", "Desconhecido");
        return manifestacao_destinatario();
    }
    manifestacao_destinatario result;
    xml::element& det_evento = result.dados_->xml;
    if (!detail::novo_det_evento(det_evento, formas[index].descricao, stack)) {
        return manifestacao_destinatario();
    }
    if (formas[index].com_justificativa && !justificativa.empty()) {
        detail::append_text(det_evento, "xJust", justificativa);
    }
    result.dados_->tipo = tipo;
    return result;
}

manifestacao_destinatario manifestacao_destinatario::from_data(tipo_manifestacao tipo, core::result::stack& stack)
{
    return from_data(tipo, std::string(), stack);
}

manifestacao_destinatario manifestacao_destinatario::from_xml(xml::element const& det_evento, tipo_manifestacao tipo,
                                                              core::result::stack& stack)
{
    if (!detail::root_is(det_evento, "detEvento", stack)) {
        return manifestacao_destinatario();
    }
    auto const found = find_elements_by_path(det_evento, {"xJust"});
    manifestacao_destinatario result;
    if (!read_optional(lookup(found, "xJust"), "detEvento/xJust", result.dados_->justificativa, stack)) {
        return manifestacao_destinatario();
    }
    result.dados_->tipo = tipo;
    result.dados_->xml = det_evento;
    return result;
}

manifestacao_destinatario manifestacao_destinatario::from_xml(xml::document const& documento, tipo_manifestacao tipo,
                                                              core::result::stack& stack)
{
    return read_root<manifestacao_destinatario>(documento, stack, tipo);
}

manifestacao_destinatario::tipo_manifestacao manifestacao_destinatario::get_tipo_manifestacao() const
{
    return dados_->tipo;
}
core::optional<std::string> manifestacao_destinatario::get_justificativa() const { return dados_->justificativa; }
xml::element manifestacao_destinatario::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
