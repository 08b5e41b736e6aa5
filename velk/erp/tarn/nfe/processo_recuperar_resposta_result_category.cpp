#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

using categoria = processo_recuperar_resposta_result_category;

constexpr auto palavras = core::result::words_by_number(categoria::numero_body_invalido,
                                                        categoria::elemento_nao_identificado,
                                                        categoria::numero_filhos_body_invalido);

}  // namespace

processo_recuperar_resposta_result_category::processo_recuperar_resposta_result_category()
    : table_category("tarn-processo-recuperar-resposta-receita", palavras)
{
}

processo_recuperar_resposta_result_category const& processo_recuperar_resposta_result_category::instance()
{
    static processo_recuperar_resposta_result_category const category;
    return category;
}

void processo_recuperar_resposta_result_category::lista_de_textos::store(core::result::stack::item& item,
                                                                         char const* const* name,
                                                                         std::vector<std::string> const& textos)
{
    std::string list = "[";
    for (std::size_t index = 0; index < textos.size(); ++index) {
        if (index > 0) {
            list += ", ";
        }
        list += textos[index];
    }
    list += "]";
    item.set_argument(name[0], list);
}

}  // namespace velk::erp::inline v4::tarn::nfe
