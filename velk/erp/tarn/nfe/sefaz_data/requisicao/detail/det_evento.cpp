#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail {

bool novo_det_evento(xml::element& det_evento, std::string const& descricao, core::result::stack& stack)
{
    det_evento = xml::element("detEvento");
    if (!det_evento.append_attribute(xml::attribute("versao", versao_evento), stack)) {
        return false;
    }
    append_text(det_evento, "descEvento", descricao);
    return true;
}

void append_text(xml::element& parent, std::string const& name, std::string const& text)
{
    parent.append_node(xml::element(name, xml::text(text)));
}

bool root_is(xml::element const& root, char const* expected, core::result::stack& stack)
{
    if (root.get_name() != expected) {
        core::result::fresh<result_category::elemento_ausente>(stack, expected);
        return false;
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail
