#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of a lookup of the urlChave text by state
// ("tarn-nfe-processo-obter-urlchave"). The library keeps no such table: the
// text always comes from the caller, and this category is for callers that
// keep one. The state and the environment are written as their numbers.
class VELK_EXPORT processo_obter_urlchave_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<processo_obter_urlchave_result_category, N, Kinds...>;
    template <class Numero>
    using numero = core::result::number<Numero>;

    static processo_obter_urlchave_result_category const& instance();

    // Number, name, words, and the names of the details.
    static constexpr row<1, numero<estado>, numero<ambiente>> url_indisponivel{
        "A url de consulta para a UF requisitada não está disponivel", "estado", "ambiente"};
    // The state given is no state.
    static constexpr row<2, numero<ambiente>> estado_invalido{"O valor do estado utilizado para busca é inválido",
                                                              "ambiente"};

private:
    processo_obter_urlchave_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
