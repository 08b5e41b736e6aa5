#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>

#include <velk/core/text_formatter.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

char const* const messages[] = {
    "A resposta da receita contém um número inválido de 'Body' elements",
    "A receita respondeu com um element não identificado",
    "O 'Body' element contém mais de um child node",
};

}  // namespace

processo_recuperar_resposta_result_category::processo_recuperar_resposta_result_category()
    : table_category("tarn-processo-recuperar-resposta-receita", messages)
{
}

processo_recuperar_resposta_result_category const& processo_recuperar_resposta_result_category::instance()
{
    static processo_recuperar_resposta_result_category const category;
    return category;
}

void processo_recuperar_resposta_result_category::create(item& target, code<1>,
                                                         unsigned long numero_body_elements) const
{
    target.set_argument("numero-de-body-elements", core::text_formatter::format("{0}", numero_body_elements));
}

void processo_recuperar_resposta_result_category::create(item& target, code<2>,
                                                         std::string const& unexpected_element_name,
                                                         std::vector<std::string> const& valid_element_names) const
{
    target.set_argument("unexpected_element_name", unexpected_element_name);
    std::string list = "[";
    for (std::size_t index = 0; index < valid_element_names.size(); ++index) {
        if (index > 0) {
            list += ", ";
        }
        list += valid_element_names[index];
    }
    list += "]";
    target.set_argument("valid_element_names", list);
}

void processo_recuperar_resposta_result_category::create(item& target, code<3>,
                                                         unsigned long numero_child_elements) const
{
    target.set_argument("numero-de-child-elements", core::text_formatter::format("{0}", numero_child_elements));
}

}  // namespace velk::erp::inline v4::tarn::nfe
