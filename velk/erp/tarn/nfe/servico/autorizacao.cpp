#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

autorizacao::resposta_type autorizacao::executar(requisicao_type const& requisicao, web_server_info const& servidor,
                                                 core::result::stack& result) const
{
    std::string const versao_dados = checked_text<servico_result_category::versao_desconhecida>(requisicao.get_versao(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    sefaz_data::requisicao::documento_fiscal const primeiro = requisicao.get_primeiro_documento(result);
    if (result.has_failed()) {
        core::result::chain<servico_result_category::requisicao_invalida>(result);
        return resposta_type();
    }
    if (!has_text<servico_result_category::estado_desconhecido>(primeiro.get_estado(), result) || !has_text<servico_result_category::ambiente_desconhecido>(primeiro.get_ambiente(), result)) {
        return resposta_type();
    }
    // The batch names its own failure; only the document's refusal of the
    // tree is the service's.
    xml::element const lote = requisicao.get_xml(result);
    if (result.has_failed()) {
        return resposta_type();
    }
    xml::document const request = request_document(lote, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return exchange_and_read<resposta_type>(request, primeiro.get_estado(), versao_dados, servidor,
                                            {"nfeAutorizacaoLoteResult", "nfeResultMsg"}, result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
