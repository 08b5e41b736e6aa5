#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/layout_3_10/escrever_layout_3_10.hpp>
#include <velk/erp/tarn/nfe/layout_3_10/montar_layout_3_10.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

// The two stages of a layout: the builder checks and maps the model into the
// tree, the writer makes the XML of the tree.
template <class Montar, class Escrever>
xml::document gerar(fiscal::nota_fiscal const& nota, Montar montar, Escrever escrever, core::result::stack& stack)
{
    auto const arvore = montar(nota, stack);
    if (stack.has_failed()) {
        return {};
    }
    return escrever(arvore, stack);
}

}  // namespace

documento_fiscal documento_fiscal::from_nota_fiscal(fiscal::nota_fiscal const& nota, versao versao_layout,
                                                    core::result::stack& stack)
{
    xml::document documento;
    switch (versao_layout) {
    case versao::versao_4_00:
        documento = gerar(nota, layout_4_00::montar_layout_4_00, layout_4_00::escrever_layout_4_00, stack);
        break;
    case versao::versao_3_10:
        documento = gerar(nota, layout_3_10::montar_layout_3_10, layout_3_10::escrever_layout_3_10, stack);
        break;
    default:
        core::result::fresh<result_category::versao_diferente>(stack);
        return documento_fiscal();
    }
    if (stack.has_failed()) {
        return documento_fiscal();
    }
    return from_xml(std::move(documento), stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
