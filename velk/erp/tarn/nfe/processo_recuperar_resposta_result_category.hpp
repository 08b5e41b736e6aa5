#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of taking the one result document out of a SOAP answer
// ("tarn-processo-recuperar-resposta-receita").
class VELK_EXPORT processo_recuperar_resposta_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<processo_recuperar_resposta_result_category, N, Kinds...>;
    using texto = core::result::text;
    using contagem = core::result::number<unsigned long>;

    // A list of names, stored as "[" + the names joined by ", " + "]".
    struct lista_de_textos : core::result::detail_kind<std::vector<std::string>, 1> {
        static void store(core::result::stack::item& item, char const* const* name,
                          std::vector<std::string> const& textos);
    };

    static processo_recuperar_resposta_result_category const& instance();

    // Number, name, words, and the names of the details.
    static constexpr row<1, contagem> numero_body_invalido{
        "A resposta da receita contém um número inválido de 'Body' elements", "numero-de-body-elements"};
    static constexpr row<2, texto, lista_de_textos> elemento_nao_identificado{
        "A receita respondeu com um element não identificado", "unexpected_element_name", "valid_element_names"};
    // Used for any number of children other than 1, zero included.
    static constexpr row<3, contagem> numero_filhos_body_invalido{"O 'Body' element contém mais de um child node",
                                                                 "numero-de-child-elements"};

private:
    processo_recuperar_resposta_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
