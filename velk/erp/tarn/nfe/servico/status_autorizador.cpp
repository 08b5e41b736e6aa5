#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

status_autorizador::resposta_type status_autorizador::executar(requisicao_type const& requisicao,
                                                               web_server_info const& servidor,
                                                               core::result::stack& result) const
{
    std::string const versao_dados = checked_text<servico_result_category::versao_desconhecida>(requisicao.get_versao(), result);
    if (result.has_failed() || !has_text<servico_result_category::estado_desconhecido>(requisicao.get_estado(), result)) {
        return resposta_type();
    }
    xml::document const request = request_document(requisicao, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    // Every version of the service may answer under any of these tags.
    return exchange_and_read<resposta_type>(request, requisicao.get_estado(), versao_dados, servidor,
                                            {"nfeStatusServicoNFResult", "nfeStatusServicoNF2Result", "nfeResultMsg"},
                                            result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
