#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of taking the one result document out of a SOAP answer
// ("tarn-processo-recuperar-resposta-receita").
class processo_recuperar_resposta_result_category final : public core::result::table_category {
public:
    template <int N>
    using code = core::result::code<processo_recuperar_resposta_result_category, N>;
    using item = core::result::stack::item;

    static processo_recuperar_resposta_result_category const& instance();

    void create(item&, code<1>, unsigned long numero_body_elements) const;
    void create(item&, code<2>, std::string const& unexpected_element_name,
                std::vector<std::string> const& valid_element_names) const;
    // Used for any number of children other than 1, zero included.
    void create(item&, code<3>, unsigned long numero_child_elements) const;

private:
    processo_recuperar_resposta_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
