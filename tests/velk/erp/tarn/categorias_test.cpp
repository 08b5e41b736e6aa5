#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>
#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/erp/tarn/nfe/servico_evento_result_category.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <support/palavras_categoria.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace tarn = velk::erp::tarn;
namespace result = velk::core::result;
using arguments = std::vector<std::pair<std::string, std::string>>;

// The words of every code as the published tables give them: a dropped accent
// or a swapped row fails here.
TEST(categorias, curl_words)
{
    velk::test::conferir_palavras(tarn::detail::soap::curl_result_category::instance(), "tarn-detail-soap-curl", {
        {1, "URL com formato inválido"},
        {2, "Função não habilitada na cURL"},
        {3, "Não foi possível resolver o proxy"},
        {4, "Não foi possível resolver o servidor"},
        {5, "Não foi possível conectar ao servidor ou proxy"},
        {6, "Não foi possível parsear a resposta do servidor"},
        {7, "Acesso ao servidor foi recusado"},
        {8, "O servidor retornou um código de erro"},
        {9, "Erro ao escrever dados recebidos"},
        {10, "Falha ao alocar memória"},
        {11, "Tempo de conexão esgotado"},
        {12, "Erro ao construir POST pela cURL"},
        {13, "Falha no handshake com o servidor"},
        {14, "Função da cURL chamada com parâmetro inválido"},
        {15, "Opção passada não reconhecida pela cURL"},
        {16, "Nada foi recebido do servidor"},
        {17, "Falha ao enviar dados para o servidor"},
        {18, "Falha ao receber dados do servidor"},
        {19, "Problema com o certificado do cliente"},
        {20, "Falha ao verificar certificado do servidor"},
        {21, "Falha ao ler cadeia de certificados"},
        {22, "Falha ao finalizar conexão SSL"},
        {23, "Falha durante a verificação do Issuer"},
        {24, "Erro desconhecido retornado pela cURL"},
    });
}

TEST(categorias, servico_words)
{
    velk::test::conferir_palavras(tarn::nfe::servico_result_category::instance(), "tarn-nfe-servico-geral", {
        {1, "Não existe um webserver configurado para atender a esta requisição"},
        {2, "Não foi possível processar a resposta da receita"},
        {3, "O servidor da receita não respondeu a requisição dentro do tempo especificado"},
        {4, "Falha ao comunicar com a receita via soap"},
        {5, "O Web Server não disponibiliza o serviço requisitado"},
        {6, "Ocorreu um erro durante a comunicação com o servidor"},
        {7, "Valor do enum de versão não reconhecido"},
        {8, "Valor do enum de ambiente não reconhecido"},
        {9, "Não foi possível construir uma requisição para enviar à receita"},
        {10, "Valor do enum de 'servidor_emissao' não reconhecido"},
        {11, "Não foi possível identificar a resposta na mensagem da receita"},
        {12, "Valor do enum de estado não reconhecido"},
        {13, "Valor da chave acesso está inválido"},
        {14, "Valor do tipo de emissão difere do esperado"},
        {15, "Valor do modelo difere do esperado"},
        {16, "O servidor da receita respondeu uma mensagem SOAP inválida"},
    });
}

TEST(categorias, processo_recuperar_resposta_words)
{
    velk::test::conferir_palavras(tarn::nfe::processo_recuperar_resposta_result_category::instance(),
                                  "tarn-processo-recuperar-resposta-receita", {
        {1, "A resposta da receita contém um número inválido de 'Body' elements"},
        {2, "A receita respondeu com um element não identificado"},
        {3, "O 'Body' element contém mais de um child node"},
    });
}

TEST(categorias, servico_evento_words)
{
    velk::test::conferir_palavras(tarn::nfe::servico_evento_result_category::instance(), "tarn-nfe-servico-evento", {
        {1, "Nenhuma requisição (cancelamento, carta de correção ou EPEC) foi informada"},
    });
}

TEST(categorias, sefaz_data_words)
{
    velk::test::conferir_palavras(tarn::nfe::sefaz_data::result_category::instance(), "erp-tarn-sefaz-data", {
        {1, "Um elemento do xml não foi encontrado"},
        {2, "O valor do element está inválido"},
        {3, "O valor do atributo do element está inválido"},
        {4, "Um atributo do xml não foi encontrado"},
        {5, "O documento xml está inválido"},
        {6, "A versão informada difere da versão esperada"},
        {7, "Nenhum documento foi encontrado"},
        {8, "O tipo de evento diferente do esperado"},
        {9, "Requisição possuí valor inválido"},
        {10, "Valor do text do element é inválido"},
        {11, "Múltiplos eventos no XML não são suportados"},
    });
}

// The codes libcurl gives in the exchanges with the simulator are checked
// there; here, what falls outside the table.
TEST(categorias, libcurl_results_outside_the_table_are_code_24)
{
    for (int const other : {-1, 0, 1, 2, 10, 84, 99}) {
        EXPECT_EQ(tarn::detail::soap::curl_result_category::code_of(other), 24) << other;
    }
}

TEST(categorias, libcurl_report_is_fresh_and_carries_curl_message)
{
    result::stack stack;
    result::chain<velk::core::converter_result_category::bad_parameter>(stack);
    tarn::detail::soap::report_curl_failure(28, "Operation timed out after 100 milliseconds", stack);
    ASSERT_EQ(stack.size(), 1u);
    EXPECT_EQ(stack.get_value(), 11);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"curl_message", "Operation timed out after 100 milliseconds"}}));

    tarn::detail::soap::report_curl_failure(2, "", stack);
    EXPECT_EQ(stack.get_value(), 24);
    ASSERT_EQ(stack.top().get_arguments().size(), 2u);
    EXPECT_EQ(stack.top().get_arguments()[0], (std::pair<std::string, std::string>{"curl_code", "2"}));
    EXPECT_EQ(stack.top().get_arguments()[1].first, "curl_message");
    EXPECT_FALSE(stack.top().get_arguments()[1].second.empty()) << "libcurl's own text when the buffer is empty";

    tarn::detail::soap::report_curl_failure(-3, nullptr, stack);
    EXPECT_EQ(*stack.top().find_argument("curl_code"), "-3");
}

// The details of the other codes are checked where the service reports them.
TEST(categorias, servico_details_are_stored_under_their_fixed_names)
{
    using tarn::nfe::servico_result_category;
    result::stack stack;
    result::chain<servico_result_category::estado_desconhecido>(stack, velk::erp::estado::sp);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"value", "24"}})) << "the enumerator, not the IBGE code";
    result::chain<servico_result_category::tipo_emissao_diferente>(
        stack, velk::erp::fiscal::tipo_emissao::contingencia_offline_nfce, velk::erp::fiscal::tipo_emissao::normal);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"valor_esperado", "7"}, {"valor_recebido", "0"}}));
    result::chain<servico_result_category::modelo_diferente>(stack, tarn::modelo::nfce, tarn::modelo::nfe);
    EXPECT_EQ(stack.top().get_arguments(), (arguments{{"valor_esperado", "1"}, {"valor_recebido", "0"}}));
}

}  // namespace
