#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/detail/processo.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/attribute.hpp>
#include <velk/xml/namespace_id.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao::detail {

bool montar_processo(xml::element& raiz, std::string const& versao, xml::element const& requisicao,
                     xml::element const& resposta, core::result::stack& stack)
{
    if (!raiz.append_namespace(xml::namespace_id("", namespace_nfe), stack) ||
        !raiz.append_attribute(xml::attribute("versao", versao), stack)) {
        return false;
    }
    raiz.append_node(requisicao);
    raiz.append_node(resposta);
    return true;
}

xml::element const* filho_do_processo(xml::element const& raiz, std::string const& tag, std::string const& nome_falha,
                                      core::result::stack& stack)
{
    xml::element const* filho = find_child_element(raiz, tag);
    if (filho == nullptr) {
        core::result::fresh<result_category::elemento_ausente>(stack, nome_falha);
    }
    return filho;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao::detail
