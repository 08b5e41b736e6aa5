#include <velk/erp/tarn/nfe/protobuf/nota_json_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

namespace {

using categoria = nota_json_result_category;

constexpr auto palavras =
    core::result::words_by_number(categoria::json_invalido, categoria::json_grande_demais, categoria::json_nao_escrito);

}  // namespace

nota_json_result_category::nota_json_result_category() : table_category("tarn-nfe-nota-json", palavras) {}

nota_json_result_category const& nota_json_result_category::instance()
{
    static nota_json_result_category const category;
    return category;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf
