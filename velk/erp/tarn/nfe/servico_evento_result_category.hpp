#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of the event service ("tarn-nfe-servico-evento").
class servico_evento_result_category final : public core::result::table_category {
public:
    static servico_evento_result_category const& instance();

    void create(core::result::stack::item&, core::result::code<servico_evento_result_category, 1>) const {}

private:
    servico_evento_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
