#pragma once

#include <velk/core/result/row.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::detail::soap {

// The one place where libcurl's result numbers are known: each becomes a code
// of this category with a Portuguese message; libcurl's own text travels in the
// argument "curl_message" (and, for code 24, the number in "curl_code").
class curl_result_category final : public core::result::table_category {
public:
    template <int N>
    using row = core::result::row<curl_result_category, N>;

    static curl_result_category const& instance();

    // Number, name and words. No code takes a detail at creation:
    // report_curl_failure adds them.
    static constexpr row<1> url_malformada{"URL com formato inválido"};
    static constexpr row<2> funcao_nao_habilitada{"Função não habilitada na cURL"};
    static constexpr row<3> proxy_nao_resolvido{"Não foi possível resolver o proxy"};
    static constexpr row<4> servidor_nao_resolvido{"Não foi possível resolver o servidor"};
    static constexpr row<5> sem_conexao{"Não foi possível conectar ao servidor ou proxy"};
    static constexpr row<6> resposta_ilegivel{"Não foi possível parsear a resposta do servidor"};
    static constexpr row<7> acesso_negado{"Acesso ao servidor foi recusado"};
    static constexpr row<8> erro_http{"O servidor retornou um código de erro"};
    static constexpr row<9> erro_escrita{"Erro ao escrever dados recebidos"};
    static constexpr row<10> sem_memoria{"Falha ao alocar memória"};
    static constexpr row<11> tempo_esgotado{"Tempo de conexão esgotado"};
    static constexpr row<12> erro_post{"Erro ao construir POST pela cURL"};
    static constexpr row<13> falha_handshake{"Falha no handshake com o servidor"};
    static constexpr row<14> parametro_invalido{"Função da cURL chamada com parâmetro inválido"};
    static constexpr row<15> opcao_desconhecida{"Opção passada não reconhecida pela cURL"};
    static constexpr row<16> resposta_vazia{"Nada foi recebido do servidor"};
    static constexpr row<17> falha_envio{"Falha ao enviar dados para o servidor"};
    static constexpr row<18> falha_recebimento{"Falha ao receber dados do servidor"};
    static constexpr row<19> certificado_cliente_invalido{"Problema com o certificado do cliente"};
    static constexpr row<20> certificado_servidor_invalido{"Falha ao verificar certificado do servidor"};
    static constexpr row<21> cadeia_certificados_ilegivel{"Falha ao ler cadeia de certificados"};
    static constexpr row<22> falha_encerramento_ssl{"Falha ao finalizar conexão SSL"};
    static constexpr row<23> emissor_invalido{"Falha durante a verificação do Issuer"};
    static constexpr row<24> erro_desconhecido{"Erro desconhecido retornado pela cURL"};

    // The code of a libcurl result: 1 to 23 by the table, 24 for any other.
    static int code_of(int curl_result);

private:
    curl_result_category();
};

// Fresh report of a failed transfer on the caller's stack: the code of the
// result, "curl_code" for code 24, and "curl_message" from the error buffer or,
// when it is empty, from curl_easy_strerror.
void report_curl_failure(int curl_result, char const* error_buffer, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::detail::soap
