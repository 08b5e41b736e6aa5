#include <velk/erp/tarn/nfe/servico_result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

using categoria = servico_result_category;

constexpr auto palavras = core::result::words_by_number(
    categoria::sem_webserver, categoria::resposta_ilegivel, categoria::sem_tempo_limite, categoria::falha_soap,
    categoria::servico_indisponivel, categoria::falha_comunicacao, categoria::versao_desconhecida,
    categoria::ambiente_desconhecido, categoria::requisicao_invalida, categoria::servidor_emissao_desconhecido,
    categoria::resposta_nao_identificada, categoria::estado_desconhecido, categoria::chave_acesso_invalida,
    categoria::tipo_emissao_diferente, categoria::modelo_diferente, categoria::soap_invalido);

}  // namespace

servico_result_category::servico_result_category() : table_category("tarn-nfe-servico-geral", palavras) {}

servico_result_category const& servico_result_category::instance()
{
    static servico_result_category const category;
    return category;
}

void servico_result_category::texto_se_houver::store(core::result::stack::item& item, char const* const* name,
                                                     std::string const& texto)
{
    if (!texto.empty()) {
        item.set_argument(name[0], texto);
    }
}

void servico_result_category::pares_de_texto::store(core::result::stack::item& item, char const* const*,
                                                    std::unordered_map<std::string, std::string> const& pares)
{
    for (auto const& [name, value] : pares) {
        item.set_argument(name, value);
    }
}

void servico_result_category::bytes::store(core::result::stack::item& item, char const* const* name,
                                           core::byte_array const& valor)
{
    item.set_argument(name[0], valor.to_string());
}

}  // namespace velk::erp::inline v4::tarn::nfe
