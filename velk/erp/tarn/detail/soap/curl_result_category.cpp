#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>

#include <curl/curl.h>

#include <array>
#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

using category = curl_result_category;

constexpr auto words = core::result::words_by_number(
    category::url_malformada, category::funcao_nao_habilitada, category::proxy_nao_resolvido,
    category::servidor_nao_resolvido, category::sem_conexao, category::resposta_ilegivel, category::acesso_negado,
    category::erro_http, category::erro_escrita, category::sem_memoria, category::tempo_esgotado, category::erro_post,
    category::falha_handshake, category::parametro_invalido, category::opcao_desconhecida, category::resposta_vazia,
    category::falha_envio, category::falha_recebimento, category::certificado_cliente_invalido,
    category::certificado_servidor_invalido, category::cadeia_certificados_ilegivel, category::falha_encerramento_ssl,
    category::emissor_invalido, category::erro_desconhecido);

// libcurl result -> code, for codes 1 to 23.
constexpr std::array<std::pair<CURLcode, int>, 23> codes_by_result = {{
    {CURLE_URL_MALFORMAT, category::url_malformada.value},
    {CURLE_NOT_BUILT_IN, category::funcao_nao_habilitada.value},
    {CURLE_COULDNT_RESOLVE_PROXY, category::proxy_nao_resolvido.value},
    {CURLE_COULDNT_RESOLVE_HOST, category::servidor_nao_resolvido.value},
    {CURLE_COULDNT_CONNECT, category::sem_conexao.value},
    {CURLE_WEIRD_SERVER_REPLY, category::resposta_ilegivel.value},
    {CURLE_REMOTE_ACCESS_DENIED, category::acesso_negado.value},
    {CURLE_HTTP_RETURNED_ERROR, category::erro_http.value},
    {CURLE_WRITE_ERROR, category::erro_escrita.value},
    {CURLE_OUT_OF_MEMORY, category::sem_memoria.value},
    {CURLE_OPERATION_TIMEDOUT, category::tempo_esgotado.value},
    {CURLE_HTTP_POST_ERROR, category::erro_post.value},
    {CURLE_SSL_CONNECT_ERROR, category::falha_handshake.value},
    {CURLE_BAD_FUNCTION_ARGUMENT, category::parametro_invalido.value},
    {CURLE_UNKNOWN_OPTION, category::opcao_desconhecida.value},
    {CURLE_GOT_NOTHING, category::resposta_vazia.value},
    {CURLE_SEND_ERROR, category::falha_envio.value},
    {CURLE_RECV_ERROR, category::falha_recebimento.value},
    {CURLE_SSL_CERTPROBLEM, category::certificado_cliente_invalido.value},
    {CURLE_PEER_FAILED_VERIFICATION, category::certificado_servidor_invalido.value},
    {CURLE_SSL_CACERT_BADFILE, category::cadeia_certificados_ilegivel.value},
    {CURLE_SSL_SHUTDOWN_FAILED, category::falha_encerramento_ssl.value},
    {CURLE_SSL_ISSUER_ERROR, category::emissor_invalido.value},
}};

}  // namespace

curl_result_category::curl_result_category() : table_category("tarn-detail-soap-curl", words) {}

curl_result_category const& curl_result_category::instance()
{
    static curl_result_category const category;
    return category;
}

int curl_result_category::code_of(int curl_result)
{
    for (auto const& [result, code] : codes_by_result) {
        if (result == curl_result) {
            return code;
        }
    }
    return erro_desconhecido.value;
}

void report_curl_failure(int curl_result, char const* error_buffer, core::result::stack& stack)
{
    core::result::stack local;
    local.push_item(curl_result_category::instance(), curl_result_category::code_of(curl_result));
    core::result::stack::item& item = *local.begin();
    if (item.get_value() == curl_result_category::erro_desconhecido.value) {
        item.set_argument("curl_code", std::to_string(curl_result));
    }
    bool const has_buffer_text = error_buffer != nullptr && error_buffer[0] != '\0';
    item.set_argument("curl_message", has_buffer_text ? error_buffer
                                                      : curl_easy_strerror(static_cast<CURLcode>(curl_result)));
    stack = std::move(local);
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
