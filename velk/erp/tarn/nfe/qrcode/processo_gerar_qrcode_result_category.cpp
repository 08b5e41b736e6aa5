#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>

#include <velk/core/text_formatter.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

char const* const messages[] = {
    "O documento informado para gerar o QrCode é inválido",
    "O CSC não é valido ou não foi informado",
    "O Id Token não é valido ou não foi informado",
    "A versao requisitada não é suportada",
    "A url não está disponivel para a UF solicitada",
    "A hash gerada para o QrCode está inválida",
    "O digest gerado para o QrCode está inválido",
    "Valor utilizado para obter a URL está inválido",
    nullptr,  // code 9 has never had words
};

}  // namespace

processo_gerar_qrcode_result_category::processo_gerar_qrcode_result_category()
    : table_category("tarn-nfe-processo-gerar-qrcode", messages)
{
}

processo_gerar_qrcode_result_category const& processo_gerar_qrcode_result_category::instance()
{
    static processo_gerar_qrcode_result_category const category;
    return category;
}

void processo_gerar_qrcode_result_category::create(item& target, code<2>, std::string const& csc) const
{
    target.set_argument("value", csc);
}

void processo_gerar_qrcode_result_category::create(item& target, code<3>, std::string const& id_token) const
{
    target.set_argument("value", id_token);
}

void processo_gerar_qrcode_result_category::create(item& target, code<4>, int versao_qrcode) const
{
    target.set_argument("value", core::text_formatter::format("{0}", versao_qrcode));
}

void processo_gerar_qrcode_result_category::create(item& target, code<5>, std::string const& codigo_uf) const
{
    target.set_argument("codigo_uf", codigo_uf);
}

void processo_gerar_qrcode_result_category::create(item& target, code<6>, std::string const& hash) const
{
    target.set_argument("hash-value", hash);
    target.set_argument("hash-size", core::text_formatter::format("{0}", hash.size()));
}

void processo_gerar_qrcode_result_category::create(item& target, code<7>, std::string const& digest) const
{
    target.set_argument("digest-value", digest);
    target.set_argument("description", "O tamanho do DigestValue deve ser igual a 56");
}

void processo_gerar_qrcode_result_category::create(item& target, code<8>, std::string const& url_version,
                                                   std::string const& url_field) const
{
    target.set_argument("url-version", url_version);
    target.set_argument("url-field", url_field);
}

void processo_gerar_qrcode_result_category::create(item& target, code<9>, std::string const& versao_nfe) const
{
    target.set_argument("versao-nfe", versao_nfe);
}

}  // namespace velk::erp::inline v4::tarn::nfe
