#include <velk/erp/tarn/nfe/qrcode/processo_obter_urlchave_result_category.hpp>

#include <velk/core/text_formatter.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

char const* const messages[] = {
    "A url de consulta para a UF requisitada não está disponivel",
    "O valor do estado utilizado para busca é inválido",
};

}  // namespace

processo_obter_urlchave_result_category::processo_obter_urlchave_result_category()
    : table_category("tarn-nfe-processo-obter-urlchave", messages)
{
}

processo_obter_urlchave_result_category const& processo_obter_urlchave_result_category::instance()
{
    static processo_obter_urlchave_result_category const category;
    return category;
}

void processo_obter_urlchave_result_category::create(item& target, code<1>, estado uf, ambiente tipo_ambiente) const
{
    target.set_argument("estado", core::text_formatter::format("{0}", uf));
    target.set_argument("ambiente", core::text_formatter::format("{0}", tipo_ambiente));
}

void processo_obter_urlchave_result_category::create(item& target, code<2>, ambiente tipo_ambiente) const
{
    target.set_argument("ambiente", core::text_formatter::format("{0}", tipo_ambiente));
}

}  // namespace velk::erp::inline v4::tarn::nfe
