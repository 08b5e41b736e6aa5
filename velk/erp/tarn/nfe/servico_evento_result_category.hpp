#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of the event service ("tarn-nfe-servico-evento").
class VELK_EXPORT servico_evento_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<servico_evento_result_category, N, Kinds...>;

    static servico_evento_result_category const& instance();

    // Number, name and words.
    static constexpr row<1> sem_requisicao{
        "Nenhuma requisição (cancelamento, carta de correção ou EPEC) foi informada"};

private:
    servico_evento_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
