#include <velk/erp/tarn/nfe/sefaz_data/resposta/resposta_evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

namespace {

using nfe::detail::tipo_evento;

resposta_evento ler_da_familia(xml::element const& root, tipo_evento tipo, core::result::stack& stack)
{
    switch (tipo) {
    case tipo_evento::cancelamento:
    case tipo_evento::cancelamento_por_substituicao:
        return cancelamento::from_xml(root, stack);
    case tipo_evento::carta_correcao:
        return carta_correcao::from_xml(root, stack);
    case tipo_evento::epec:
        return epec_nfe::from_xml(root, stack);
    default:
        return manifestacao_destinatario::from_xml(root, stack);
    }
}

}  // namespace

resposta_evento resposta_evento_from_xml(xml::element const& root, core::result::stack& stack)
{
    if (root.get_name() != "retEvento") {
        core::result::fresh<result_category::elemento_ausente>(stack, "retEvento");
        return cancelamento();
    }
    auto const found = find_elements_by_path(root, {"infEvento/tpEvento"});
    tipo_evento tipo = tipo_evento::cancelamento;
    if (!read_required(lookup(found, "infEvento/tpEvento"), "retEvento/infEvento/tpEvento", tipo, stack)) {
        return cancelamento();
    }
    resposta_evento resposta = ler_da_familia(root, tipo, stack);
    if (stack.has_failed()) {
        return cancelamento();
    }
    return resposta;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
