#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

namespace {

using categoria = result_category;

constexpr auto palavras = core::result::words_by_number(
    categoria::elemento_ausente, categoria::valor_elemento_invalido, categoria::valor_atributo_invalido,
    categoria::atributo_ausente, categoria::documento_invalido, categoria::versao_diferente, categoria::sem_documento,
    categoria::tipo_evento_diferente, categoria::valor_requisicao_invalido, categoria::texto_elemento_invalido,
    categoria::multiplos_eventos);

}  // namespace

result_category::result_category() : table_category("erp-tarn-sefaz-data", palavras) {}

result_category const& result_category::instance()
{
    static result_category const category;
    return category;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data
