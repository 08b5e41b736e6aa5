#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>

#include <curl/curl.h>

#include <array>
#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

char const* const messages[] = {
    "URL com formato inválido",
    "Função não habilitada na cURL",
    "Não foi possível resolver o proxy",
    "Não foi possível resolver o servidor",
    "Não foi possível conectar ao servidor ou proxy",
    "Não foi possível parsear a resposta do servidor",
    "Acesso ao servidor foi recusado",
    "O servidor retornou um código de erro",
    "Erro ao escrever dados recebidos",
    "Falha ao alocar memória",
    "Tempo de conexão esgotado",
    "Erro ao construir POST pela cURL",
    "Falha no handshake com o servidor",
    "Função da cURL chamada com parâmetro inválido",
    "Opção passada não reconhecida pela cURL",
    "Nada foi recebido do servidor",
    "Falha ao enviar dados para o servidor",
    "Falha ao receber dados do servidor",
    "Problema com o certificado do cliente",
    "Falha ao verificar certificado do servidor",
    "Falha ao ler cadeia de certificados",
    "Falha ao finalizar conexão SSL",
    "Falha durante a verificação do Issuer",
    "Erro desconhecido retornado pela cURL",
};

// libcurl result -> code, for codes 1 to 23.
constexpr std::array<std::pair<int, int>, 23> codes_by_result = {{
    {3, 1},   {4, 2},   {5, 3},   {6, 4},   {7, 5},   {8, 6},   {9, 7},   {22, 8},
    {23, 9},  {27, 10}, {28, 11}, {34, 12}, {35, 13}, {43, 14}, {48, 15}, {52, 16},
    {55, 17}, {56, 18}, {58, 19}, {60, 20}, {77, 21}, {80, 22}, {83, 23},
}};

constexpr int unknown_code = 24;

}  // namespace

curl_result_category::curl_result_category() : table_category("tarn-detail-soap-curl", messages) {}

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
    return unknown_code;
}

void report_curl_failure(int curl_result, char const* error_buffer, core::result::stack& stack)
{
    core::result::stack local;
    local.push_item(curl_result_category::instance(), curl_result_category::code_of(curl_result));
    core::result::stack::item& item = *local.begin();
    if (item.get_value() == unknown_code) {
        item.set_argument("curl_code", std::to_string(curl_result));
    }
    bool const has_buffer_text = error_buffer != nullptr && error_buffer[0] != '\0';
    item.set_argument("curl_message", has_buffer_text ? error_buffer
                                                      : curl_easy_strerror(static_cast<CURLcode>(curl_result)));
    stack = std::move(local);
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
