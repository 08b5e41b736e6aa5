#include <velk/erp/tarn/nfe/detail/assinatura.hpp>

#include <velk/erp/tarn/nfe/assinar_elemento.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::detail {

bool remover_primeira_assinatura(xml::element& raiz)
{
    auto children = raiz.get_node_range();
    for (auto position = children.begin(); position != children.end(); ++position) {
        if (position->get_type() == xml::node_type::element && position->as_element()->get_name() == "Signature") {
            children.erase(position);
            return true;
        }
    }
    return false;
}

void assinar_raiz(xml::element& raiz, montar_identificador const& identificador,
                  cryptography::pkcs12 const& certificado, core::result::stack& stack)
{
    remover_primeira_assinatura(raiz);
    std::string id;
    if (!identificador(id, stack)) {
        return;
    }
    assinar_elemento(raiz, "#" + id, certificado, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail
