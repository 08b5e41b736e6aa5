#include <velk/erp/tarn/detail/soap/extract_result_document.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>

#include <algorithm>
#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

xml::document extract_result_document(message response, std::vector<std::string> const& valid_names,
                                      core::result::stack& result)
{
    using processo = nfe::processo_recuperar_resposta_result_category;
    if (response.body.size() != 1) {
        core::result::fresh<processo::numero_body_invalido>(result, response.body.size());
        return xml::document();
    }
    body_element& result_tag = response.body.front();
    if (std::find(valid_names.begin(), valid_names.end(), result_tag.name) == valid_names.end()) {
        core::result::fresh<processo::elemento_nao_identificado>(result, result_tag.name, valid_names);
        return xml::document();
    }
    if (result_tag.children.size() != 1) {
        core::result::fresh<processo::numero_filhos_body_invalido>(result, result_tag.children.size());
        return xml::document();
    }
    xml::document document;
    if (!document.append_node(std::move(result_tag.children.front()), result)) {
        return xml::document();
    }
    return document;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
