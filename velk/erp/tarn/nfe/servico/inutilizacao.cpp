#include <velk/erp/tarn/nfe/servico/inutilizacao.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

inutilizacao::resposta_type inutilizacao::executar(requisicao_type const& requisicao, web_server_info const& servidor,
                                                   core::result::stack& result) const
{
    std::string const versao_dados = checked_text<servico_result_category::versao_desconhecida>(requisicao.get_versao(), result);
    if (result.has_failed() || !has_text<servico_result_category::estado_desconhecido>(requisicao.get_estado(), result)) {
        return resposta_type();
    }
    // The request keeps its signed tree: nothing is written anew.
    xml::document const request = request_document(requisicao.get_xml(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return exchange_and_read<resposta_type>(
        request, requisicao.get_estado(), versao_dados, servidor,
        {"nfeInutilizacaoNFResult", "nfeInutilizacaoNF2Result", "nfeResultMsg"}, result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
