#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>

#include <gtest/gtest.h>

#include <curl/curl.h>

#include <string>

namespace {

namespace soap = velk::erp::tarn::detail::soap;
using velk::core::result::stack;

// Each libcurl result the table knows, the code a caller sees for it and that
// code's words. libcurl's own text goes along in "curl_message".
TEST(curl_result_category, every_libcurl_result_of_the_table)
{
    struct row {
        CURLcode libcurl;
        int code;
        char const* message;
    } const rows[] = {
        {CURLE_URL_MALFORMAT, 1, "URL com formato inválido"},
        {CURLE_NOT_BUILT_IN, 2, "Função não habilitada na cURL"},
        {CURLE_COULDNT_RESOLVE_PROXY, 3, "Não foi possível resolver o proxy"},
        {CURLE_COULDNT_RESOLVE_HOST, 4, "Não foi possível resolver o servidor"},
        {CURLE_COULDNT_CONNECT, 5, "Não foi possível conectar ao servidor ou proxy"},
        {CURLE_WEIRD_SERVER_REPLY, 6, "Não foi possível parsear a resposta do servidor"},
        {CURLE_REMOTE_ACCESS_DENIED, 7, "Acesso ao servidor foi recusado"},
        {CURLE_HTTP_RETURNED_ERROR, 8, "O servidor retornou um código de erro"},
        {CURLE_WRITE_ERROR, 9, "Erro ao escrever dados recebidos"},
        {CURLE_OUT_OF_MEMORY, 10, "Falha ao alocar memória"},
        {CURLE_OPERATION_TIMEDOUT, 11, "Tempo de conexão esgotado"},
        {CURLE_HTTP_POST_ERROR, 12, "Erro ao construir POST pela cURL"},
        {CURLE_SSL_CONNECT_ERROR, 13, "Falha no handshake com o servidor"},
        {CURLE_BAD_FUNCTION_ARGUMENT, 14, "Função da cURL chamada com parâmetro inválido"},
        {CURLE_UNKNOWN_OPTION, 15, "Opção passada não reconhecida pela cURL"},
        {CURLE_GOT_NOTHING, 16, "Nada foi recebido do servidor"},
        {CURLE_SEND_ERROR, 17, "Falha ao enviar dados para o servidor"},
        {CURLE_RECV_ERROR, 18, "Falha ao receber dados do servidor"},
        {CURLE_SSL_CERTPROBLEM, 19, "Problema com o certificado do cliente"},
        {CURLE_PEER_FAILED_VERIFICATION, 20, "Falha ao verificar certificado do servidor"},
        {CURLE_SSL_CACERT_BADFILE, 21, "Falha ao ler cadeia de certificados"},
        {CURLE_SSL_SHUTDOWN_FAILED, 22, "Falha ao finalizar conexão SSL"},
        {CURLE_SSL_ISSUER_ERROR, 23, "Falha durante a verificação do Issuer"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE("libcurl " + std::to_string(each.libcurl));
        stack result;
        soap::report_curl_failure(each.libcurl, "", result);
        ASSERT_EQ(result.size(), 1u);
        EXPECT_EQ(result.get_category(), soap::curl_result_category::instance());
        EXPECT_EQ(result.get_value(), each.code);
        EXPECT_STREQ(result.top().get_message(), each.message);
        EXPECT_EQ(result.top().get_arguments(),
                  (std::vector<std::pair<std::string, std::string>>{
                      {"curl_message", curl_easy_strerror(each.libcurl)}}))
            << "no \"curl_code\" for a result of the table";
    }
}

}  // namespace
