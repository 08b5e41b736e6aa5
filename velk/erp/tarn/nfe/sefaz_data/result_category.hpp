#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

// Failures of reading and writing the SEFAZ messages ("erp-tarn-sefaz-data").
class VELK_EXPORT result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<result_category, N, Kinds...>;
    using texto = core::result::text;
    using texto_omissivel = core::result::omissible<core::result::text>;

    static result_category const& instance();

    // Number, name, words, and the names of the details. The value of codes
    // 2 and 3 may be left out of the call: then only the name is stored.
    static constexpr row<1, texto> elemento_ausente{"Um elemento do xml não foi encontrado", "element-name"};
    static constexpr row<2, texto, texto_omissivel> valor_elemento_invalido{"O valor do element está inválido",
                                                                            "element-name", "element-value"};
    static constexpr row<3, texto, texto_omissivel> valor_atributo_invalido{
        "O valor do atributo do element está inválido", "attribute-name", "attribute-value"};
    static constexpr row<4, texto> atributo_ausente{"Um atributo do xml não foi encontrado", "attribute-name"};
    static constexpr row<5> documento_invalido{"O documento xml está inválido"};
    static constexpr row<6> versao_diferente{"A versão informada difere da versão esperada"};
    static constexpr row<7> sem_documento{"Nenhum documento foi encontrado"};
    static constexpr row<8, texto, texto> tipo_evento_diferente{"O tipo de evento diferente do esperado", "expected",
                                                                "received"};
    static constexpr row<9, texto, texto> valor_requisicao_invalido{"Requisição possuí valor inválido",
                                                                    "request-name", "field-name"};
    static constexpr row<10, texto> texto_elemento_invalido{"Valor do text do element é inválido", "element-name"};
    static constexpr row<11> multiplos_eventos{"Múltiplos eventos no XML não são suportados"};

private:
    result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data
