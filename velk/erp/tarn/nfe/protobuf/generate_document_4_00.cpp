#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

xml::document generate_document_4_00(detail::mensagem::NotaFiscal const& nota, core::result::stack& stack)
{
    layout_4_00::layout_4_00 arvore;
    arvore.versao = "4.00";
    if (!detail::montar_nota(nota, arvore, stack)) {
        return {};
    }
    return layout_4_00::escrever_layout_4_00(arvore, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf
