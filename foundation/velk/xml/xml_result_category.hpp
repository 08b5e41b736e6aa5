#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::xml {
inline namespace v3 {

// Failures of the XML tree ("velk-xml").
class VELK_EXPORT xml_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<xml_result_category, N, Kinds...>;
    using text = core::result::text;

    static xml_result_category const& instance();

    // Number, name, words, and the names of the details.
    static constexpr row<1, text, text> malformed{"O documento XML está malformado", "description", "line"};
    static constexpr row<2> dtd_declared{"O documento XML declara um DTD, o que não é aceito"};
    static constexpr row<3, text> invalid_name{"Nome inválido para elemento ou atributo", "name"};
    static constexpr row<4, text> duplicate_attribute{"Atributo já existente no elemento", "name"};
    static constexpr row<5, text> duplicate_prefix{"Prefixo de namespace já declarado no elemento", "prefix"};
    static constexpr row<6> root_exists{"O documento já possui um elemento raiz"};
    static constexpr row<7> no_root{"O documento não possui elemento raiz"};
    static constexpr row<8, text> canonicalization_failed{"Falha na canonicalização do XML", "description"};

private:
    xml_result_category();
};

}  // namespace v3
}  // namespace velk::xml
