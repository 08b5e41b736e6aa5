#include <velk/erp/tarn/nfe/servico_evento_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

char const* const messages[] = {
    "Nenhuma requisição (cancelamento, carta de correção ou EPEC) foi informada",
};

}  // namespace

servico_evento_result_category::servico_evento_result_category()
    : table_category("tarn-nfe-servico-evento", messages)
{
}

servico_evento_result_category const& servico_evento_result_category::instance()
{
    static servico_evento_result_category const category;
    return category;
}

}  // namespace velk::erp::inline v4::tarn::nfe
