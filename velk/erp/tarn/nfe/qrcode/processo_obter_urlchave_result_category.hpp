#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of a lookup of the urlChave text by state
// ("tarn-nfe-processo-obter-urlchave"). The library keeps no such table: the
// text always comes from the caller, and this category is for callers that
// keep one. The state and the environment are written as their numbers.
class processo_obter_urlchave_result_category final : public core::result::table_category {
public:
    template <int N>
    using code = core::result::code<processo_obter_urlchave_result_category, N>;
    using item = core::result::stack::item;

    static processo_obter_urlchave_result_category const& instance();

    // No consultation address for the state in that environment.
    void create(item&, code<1>, estado uf, ambiente tipo_ambiente) const;
    // The state given is no state.
    void create(item&, code<2>, ambiente tipo_ambiente) const;

private:
    processo_obter_urlchave_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
