#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

// Failures of a note's JSON text ("tarn-nfe-nota-json"): a text that is no
// NotaFiscal, in the words of protobuf's reader, and one too large to be a note.
class VELK_EXPORT nota_json_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<nota_json_result_category, N, Kinds...>;

    static nota_json_result_category const& instance();

    // Number, name, words and the name of the detail.
    static constexpr row<1, core::result::text> json_invalido{"O texto não é uma nota fiscal em JSON", "reason"};
    static constexpr row<2, core::result::number<unsigned long long>> json_grande_demais{
        "O texto da nota fiscal excede o tamanho admitido", "size"};
    static constexpr row<3, core::result::text> json_nao_escrito{"A nota fiscal não pôde ser escrita em JSON",
                                                                 "reason"};

private:
    nota_json_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf
