// fuzz-dictionary: xml
// The archives a caller keeps and hands back (nfeProc, procEventoNFe,
// procInutNFe): read, and what was read given back out.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/inutilizacao.hpp>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    namespace distribuicao = erp::tarn::nfe::sefaz_data::distribuicao;
    std::optional<xml::document> const document = fuzz::load(data, size);
    if (!document) {
        return 0;
    }
    xml::element const& root = *document->get_root_element();
    {
        core::result::stack stack;
        distribuicao::autorizacao const lida = distribuicao::autorizacao::from_xml(root, stack);
        if (!stack.has_failed()) {
            (void)lida.get_requisicao(stack);
            (void)lida.get_xml();
        }
    }
    {
        core::result::stack stack;
        distribuicao::evento const lido = distribuicao::evento::from_xml(root, stack);
        if (!stack.has_failed()) {
            (void)lido.get_xml();
        }
    }
    {
        core::result::stack stack;
        distribuicao::inutilizacao const lida = distribuicao::inutilizacao::from_xml(root, stack);
        if (!stack.has_failed()) {
            (void)lida.get_requisicao();
            (void)lida.get_resposta();
            (void)lida.get_xml();
        }
    }
    return 0;
}
