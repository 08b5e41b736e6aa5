#include <velk/erp/tarn/nfe/layout_3_10/escrever_layout_3_10.hpp>

#include <velk/erp/tarn/nfe/layout_3_10/diferencas_layout.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

xml::document escrever_layout_3_10(layout_3_10 const& arvore, core::result::stack& stack)
{
    xml::document documento = layout_4_00::escrever_layout_4_00(arvore, stack);
    if (xml::element* nfe = documento.get_root_element()) {
        adaptar_ao_layout_3_10(*nfe);
    }
    return documento;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10
