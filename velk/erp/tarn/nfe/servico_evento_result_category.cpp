#include <velk/erp/tarn/nfe/servico_evento_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

constexpr auto palavras = core::result::words_by_number(servico_evento_result_category::sem_requisicao);

}  // namespace

servico_evento_result_category::servico_evento_result_category() : table_category("tarn-nfe-servico-evento", palavras)
{
}

servico_evento_result_category const& servico_evento_result_category::instance()
{
    static servico_evento_result_category const category;
    return category;
}

}  // namespace velk::erp::inline v4::tarn::nfe
