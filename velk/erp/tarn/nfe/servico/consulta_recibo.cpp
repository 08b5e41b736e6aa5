#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

consulta_recibo::resposta_type consulta_recibo::executar(requisicao_type const& requisicao,
                                                         web_server_info const& servidor,
                                                         core::result::stack& result) const
{
    if (!has_text<servico_result_category::estado_desconhecido>(requisicao.get_estado(), result) || !has_text<servico_result_category::ambiente_desconhecido>(requisicao.get_ambiente(), result)) {
        return resposta_type();
    }
    std::string const versao_dados = checked_text<servico_result_category::versao_desconhecida>(requisicao.get_versao(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    xml::document const request = request_document(requisicao, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return exchange_and_read<resposta_type>(
        request, requisicao.get_estado(), versao_dados, servidor,
        {"nfeRetAutorizacaoLoteResult", "nfeRetAutorizacaoResult", "nfeResultMsg"}, result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
