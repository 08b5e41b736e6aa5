#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <velk/core/text_formatter.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

char const* const messages[] = {
    "Não existe um webserver configurado para atender a esta requisição",
    "Não foi possível processar a resposta da receita",
    "O servidor da receita não respondeu a requisição dentro do tempo especificado",
    "Falha ao comunicar com a receita via soap",
    "O Web Server não disponibiliza o serviço requisitado",
    "Ocorreu um erro durante a comunicação com o servidor",
    "Valor do enum de versão não reconhecido",
    "Valor do enum de ambiente não reconhecido",
    "Não foi possível construir uma requisição para enviar à receita",
    "Valor do enum de 'servidor_emissao' não reconhecido",
    "Não foi possível identificar a resposta na mensagem da receita",
    "Valor do enum de estado não reconhecido",
    "Valor da chave acesso está inválido",
    "Valor do tipo de emissão difere do esperado",
    "Valor do modelo difere do esperado",
    "O servidor da receita respondeu uma mensagem SOAP inválida",
};

template <class Enumeration>
std::string number_text(Enumeration value)
{
    return core::text_formatter::format("{0}", value);
}

}  // namespace

servico_result_category::servico_result_category() : table_category("tarn-nfe-servico-geral", messages) {}

servico_result_category const& servico_result_category::instance()
{
    static servico_result_category const category;
    return category;
}

void servico_result_category::create(item& target, code<1>, std::string const& servico, std::string const& uf,
                                     std::string const& ambiente, std::string const& versao,
                                     std::string const& servidor_emissao) const
{
    target.set_argument("servico", servico);
    target.set_argument("uf", uf);
    target.set_argument("ambiente", ambiente);
    target.set_argument("versao", versao);
    target.set_argument("servidor_emissao", servidor_emissao);
}

void servico_result_category::create(item& target, code<2>, std::string const& description) const
{
    if (!description.empty()) {
        target.set_argument("description", description);
    }
}

void servico_result_category::create(item& target, code<4>,
                                     std::unordered_map<std::string, std::string> const& fault) const
{
    for (auto const& [name, value] : fault) {
        target.set_argument(name, value);
    }
}

void servico_result_category::create(item& target, code<5>, std::string const& endpoint,
                                     std::string const& action) const
{
    target.set_argument("Endpoint", endpoint);
    target.set_argument("Action", action);
}

void servico_result_category::create(item& target, code<7>, versao value) const
{
    target.set_argument("value", number_text(value));
}

void servico_result_category::create(item& target, code<8>, ambiente value) const
{
    target.set_argument("value", number_text(value));
}

void servico_result_category::create(item& target, code<10>, servidor_emissao value) const
{
    target.set_argument("value", number_text(value));
}

void servico_result_category::create(item& target, code<12>, estado value) const
{
    target.set_argument("value", number_text(value));
}

void servico_result_category::create(item& target, code<14>, fiscal::tipo_emissao esperado,
                                     fiscal::tipo_emissao recebido) const
{
    target.set_argument("valor_esperado", number_text(esperado));
    target.set_argument("valor_recebido", number_text(recebido));
}

void servico_result_category::create(item& target, code<15>, modelo esperado, modelo recebido) const
{
    target.set_argument("valor_esperado", number_text(esperado));
    target.set_argument("valor_recebido", number_text(recebido));
}

void servico_result_category::create(item& target, code<16>, std::string const& description,
                                     core::byte_array const& soap_message) const
{
    target.set_argument("description", description);
    target.set_argument("soap_message", soap_message.to_string());
}

}  // namespace velk::erp::inline v4::tarn::nfe
