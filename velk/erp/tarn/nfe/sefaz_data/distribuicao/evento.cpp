#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/detail/processo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao {

namespace {

requisicao::evento ler_evento(xml::element const& elemento, core::result::stack& stack)
{
    return requisicao::evento::from_xml(elemento, stack);
}

// The event of an archive that kept the whole batch: its only evento.
xml::element const* evento_do_lote(xml::element const& lote, core::result::stack& stack)
{
    xml::element const* encontrado = nullptr;
    for (xml::node const& filho : lote.get_node_range()) {
        xml::element const* elemento = filho.as_element();
        if (elemento == nullptr || elemento->get_name() != "evento") {
            continue;
        }
        if (encontrado != nullptr) {
            core::result::fresh<result_category::multiplos_eventos>(stack);
            return nullptr;
        }
        encontrado = elemento;
    }
    if (encontrado == nullptr) {
        core::result::fresh<result_category::elemento_ausente>(stack, "procEventoNFe/evento");
    }
    return encontrado;
}

}  // namespace

evento::evento() : xml_("procEventoNFe") {}

evento evento::from_data(requisicao::evento const& requisicao, resposta::resposta_evento const& resposta,
                         core::result::stack& stack)
{
    xml::element const retorno = core::visit([](auto const& alternativa) { return alternativa.get_xml(); }, resposta);
    evento processo;
    if (!detail::montar_processo(processo.xml_, "1.00", requisicao.get_xml(), retorno, stack)) {
        return {};
    }
    return processo;
}

evento evento::from_xml(xml::element const& elemento, xml::element const& resposta, core::result::stack& stack)
{
    auto const requisicao = ler_evento(elemento, stack);
    if (stack.has_failed()) {
        return {};
    }
    auto const retorno = resposta::resposta_evento_from_xml(resposta, stack);
    if (stack.has_failed()) {
        return {};
    }
    return from_data(requisicao, retorno, stack);
}

evento evento::from_xml(xml::element const& proc_evento, core::result::stack& stack)
{
    if (proc_evento.get_name() != "procEventoNFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "procEventoNFe");
        return {};
    }
    xml::element const* lote = find_child_element(proc_evento, "envEvento");
    xml::element const* elemento = lote != nullptr
                                       ? evento_do_lote(*lote, stack)
                                       : detail::filho_do_processo(proc_evento, "evento", "procEventoNFe/evento", stack);
    xml::element const* retorno =
        elemento == nullptr
            ? nullptr
            : detail::filho_do_processo(proc_evento, "retEvento", "procEventoNFe/retEvento", stack);
    if (retorno == nullptr) {
        return {};
    }
    return from_xml(*elemento, *retorno, stack);
}

requisicao::evento evento::get_requisicao(core::result::stack& stack) const
{
    return detail::ler_parte<requisicao::evento>(xml_, "evento", "procEventoNFe/evento", ler_evento, stack);
}

resposta::resposta_evento evento::get_resposta(core::result::stack& stack) const
{
    return detail::ler_parte<resposta::resposta_evento>(xml_, "retEvento", "procEventoNFe/retEvento",
                                                        resposta::resposta_evento_from_xml, stack);
}

xml::element evento::get_xml() const { return xml_; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao
