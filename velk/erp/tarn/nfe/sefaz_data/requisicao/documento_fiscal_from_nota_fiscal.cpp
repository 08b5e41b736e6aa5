#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

documento_fiscal documento_fiscal::from_nota_fiscal(fiscal::nota_fiscal const& nota, versao versao_layout,
                                                    core::result::stack& stack)
{
    if (versao_layout != versao::versao_4_00) {
        core::result::fresh<result_category::versao_diferente>(stack);
        return documento_fiscal();
    }
    layout_4_00::layout_4_00 const arvore = layout_4_00::montar_layout_4_00(nota, stack);
    if (stack.has_failed()) {
        return documento_fiscal();
    }
    xml::document const documento = layout_4_00::escrever_layout_4_00(arvore, stack);
    if (stack.has_failed()) {
        return documento_fiscal();
    }
    return from_xml(documento, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
