#include <velk/erp/tarn/nfe/qrcode/processo_obter_urlchave_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

using categoria = processo_obter_urlchave_result_category;

constexpr auto palavras = core::result::words_by_number(categoria::url_indisponivel, categoria::estado_invalido);

}  // namespace

processo_obter_urlchave_result_category::processo_obter_urlchave_result_category()
    : table_category("tarn-nfe-processo-obter-urlchave", palavras)
{
}

processo_obter_urlchave_result_category const& processo_obter_urlchave_result_category::instance()
{
    static processo_obter_urlchave_result_category const category;
    return category;
}

}  // namespace velk::erp::inline v4::tarn::nfe
