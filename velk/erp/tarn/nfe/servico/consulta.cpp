#include <velk/erp/tarn/nfe/servico/consulta.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

consulta::resposta_type consulta::executar(requisicao_type const& requisicao, web_server_info const& servidor,
                                           core::result::stack& result) const
{
    std::string const versao_dados = checked_text<servico_result_category::versao_desconhecida>(requisicao.get_versao(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    xml::document const request = request_document(requisicao, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return exchange_and_read<resposta_type>(request, requisicao.get_chave_acesso().get_estado(), versao_dados,
                                            servidor, {"nfeConsultaNFResult", "nfeConsultaNF2Result", "nfeResultMsg"},
                                            result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
