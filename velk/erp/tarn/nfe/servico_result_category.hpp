#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/fiscal/tipo_emissao.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/servidor_emissao.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

#include <string>
#include <unordered_map>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of the web service calls ("tarn-nfe-servico-geral").
class VELK_EXPORT servico_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<servico_result_category, N, Kinds...>;
    using texto = core::result::text;
    template <class Numero>
    using numero = core::result::number<Numero>;

    // A text left out when it is empty.
    struct texto_se_houver : core::result::detail_kind<std::string, 1> {
        static void store(core::result::stack::item& item, char const* const* name, std::string const& texto);
    };
    // The texts of a SOAP fault: each pair is an argument, name and value as they are.
    struct pares_de_texto : core::result::detail_kind<std::unordered_map<std::string, std::string>, 0> {
        static void store(core::result::stack::item& item, char const* const*,
                          std::unordered_map<std::string, std::string> const& pares);
    };
    // Bytes, stored as the text they hold.
    struct bytes : core::result::detail_kind<core::byte_array, 1> {
        static void store(core::result::stack::item& item, char const* const* name, core::byte_array const& valor);
    };

    static servico_result_category const& instance();

    // Number, name, words, and the names of the details. Codes 1, 6 and 10
    // are never raised here: they are for applications that choose their own
    // web server; code 6 cannot be created at all.
    static constexpr row<1, texto, texto, texto, texto, texto> sem_webserver{
        "Não existe um webserver configurado para atender a esta requisição",
        "servico", "uf", "ambiente", "versao", "servidor_emissao"};
    static constexpr row<2, texto_se_houver> resposta_ilegivel{"Não foi possível processar a resposta da receita",
                                                               "description"};
    static constexpr row<3> sem_tempo_limite{
        "O servidor da receita não respondeu a requisição dentro do tempo especificado"};
    static constexpr row<4, pares_de_texto> falha_soap{"Falha ao comunicar com a receita via soap"};
    static constexpr row<5, texto, texto> servico_indisponivel{"O Web Server não disponibiliza o serviço requisitado",
                                                               "Endpoint", "Action"};
    static constexpr row<6, core::result::not_created> falha_comunicacao{
        "Ocorreu um erro durante a comunicação com o servidor"};
    static constexpr row<7, numero<versao>> versao_desconhecida{"Valor do enum de versão não reconhecido", "value"};
    static constexpr row<8, numero<ambiente>> ambiente_desconhecido{"Valor do enum de ambiente não reconhecido",
                                                                   "value"};
    static constexpr row<9> requisicao_invalida{"Não foi possível construir uma requisição para enviar à receita"};
    static constexpr row<10, numero<servidor_emissao>> servidor_emissao_desconhecido{
        "Valor do enum de 'servidor_emissao' não reconhecido", "value"};
    static constexpr row<11> resposta_nao_identificada{
        "Não foi possível identificar a resposta na mensagem da receita"};
    static constexpr row<12, numero<estado>> estado_desconhecido{"Valor do enum de estado não reconhecido", "value"};
    static constexpr row<13> chave_acesso_invalida{"Valor da chave acesso está inválido"};
    static constexpr row<14, numero<fiscal::tipo_emissao>, numero<fiscal::tipo_emissao>> tipo_emissao_diferente{
        "Valor do tipo de emissão difere do esperado", "valor_esperado", "valor_recebido"};
    static constexpr row<15, numero<modelo>, numero<modelo>> modelo_diferente{"Valor do modelo difere do esperado",
                                                                             "valor_esperado", "valor_recebido"};
    static constexpr row<16, texto, bytes> soap_invalido{"O servidor da receita respondeu uma mensagem SOAP inválida",
                                                         "description", "soap_message"};

private:
    servico_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
