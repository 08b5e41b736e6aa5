#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>

#include <velk/core/text_formatter.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

using categoria = processo_gerar_qrcode_result_category;

constexpr auto palavras = core::result::words_by_number(
    categoria::documento_invalido, categoria::csc_invalido, categoria::id_token_invalido,
    categoria::versao_nao_suportada, categoria::url_indisponivel, categoria::hash_invalido, categoria::digest_invalido,
    categoria::valor_url_invalido, categoria::url_indisponivel_versao);

}  // namespace

processo_gerar_qrcode_result_category::processo_gerar_qrcode_result_category()
    : table_category("tarn-nfe-processo-gerar-qrcode", palavras)
{
}

processo_gerar_qrcode_result_category const& processo_gerar_qrcode_result_category::instance()
{
    static processo_gerar_qrcode_result_category const category;
    return category;
}

void processo_gerar_qrcode_result_category::texto_e_tamanho::store(core::result::stack::item& item,
                                                                   char const* const* name, std::string const& texto)
{
    item.set_argument(name[0], texto);
    item.set_argument(name[1], core::text_formatter::format("{0}", texto.size()));
}

void processo_gerar_qrcode_result_category::texto_e_observacao::store(core::result::stack::item& item,
                                                                      char const* const* name,
                                                                      std::string const& texto)
{
    item.set_argument(name[0], texto);
    item.set_argument(name[1], name[2]);
}

}  // namespace velk::erp::inline v4::tarn::nfe
