#include "demo_archive.hpp"

#include "demo_context.hpp"
#include "demo_xml.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/inutilizacao.hpp>
#include <velk/xml/document.hpp>

namespace velk::demo {

namespace {

namespace distribuicao = erp::tarn::nfe::sefaz_data::distribuicao;

// The archive as text, and as a stored file would be read again.
template <class Arquivo>
std::string texto_relido(Arquivo const& arquivo, char const* what)
{
    std::string const texto = to_text(arquivo.get_xml(), what);
    core::result::stack stack;
    xml::document lido;
    lido.load(core::byte_array(texto), stack);
    check(stack, what);
    Arquivo::from_xml(*lido.get_root_element(), stack);
    check(stack, what);
    return texto;
}

}  // namespace

std::string archive_authorization(erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal const& documento,
                                  erp::tarn::nfe::sefaz_data::resposta::protocolo_nfe const& protocolo)
{
    core::result::stack stack;
    auto const arquivo = distribuicao::autorizacao::from_data(documento, protocolo, stack);
    check(stack, "archive of the authorization");
    return texto_relido(arquivo, "archive of the authorization, read back");
}

std::string archive_event(erp::tarn::nfe::sefaz_data::requisicao::evento const& evento,
                          erp::tarn::nfe::sefaz_data::resposta::resposta_evento const& resposta)
{
    core::result::stack stack;
    auto const arquivo = distribuicao::evento::from_data(evento, resposta, stack);
    check(stack, "archive of the event");
    return texto_relido(arquivo, "archive of the event, read back");
}

std::string archive_disablement(erp::tarn::nfe::sefaz_data::requisicao::inutilizacao const& pedido,
                                erp::tarn::nfe::sefaz_data::resposta::inutilizacao const& resposta)
{
    core::result::stack stack;
    auto const arquivo = distribuicao::inutilizacao::from_data(pedido, resposta, stack);
    check(stack, "archive of the disablement");
    std::string const texto = texto_relido(arquivo, "archive of the disablement, read back");
    demo_context::say("  archived with its answer as " + arquivo.get_xml().get_name());
    return texto;
}

}  // namespace velk::demo
