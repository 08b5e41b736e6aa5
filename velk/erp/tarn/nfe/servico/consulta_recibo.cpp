#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

namespace {

std::vector<std::string> const& result_tags()
{
    static std::vector<std::string> const tags = {"nfeRetAutorizacaoLoteResult", "nfeRetAutorizacaoResult",
                                                  "nfeResultMsg"};
    return tags;
}

}  // namespace

consulta_recibo::resposta_type consulta_recibo::executar(requisicao_type const& requisicao,
                                                         web_server_info const& servidor,
                                                         core::result::stack& result) const
{
    checked_text<12>(requisicao.get_estado(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    checked_text<8>(requisicao.get_ambiente(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    std::string const versao_dados = checked_text<7>(requisicao.get_versao(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    xml::document const request = request_document(requisicao, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return exchange_and_read<resposta_type>(request, requisicao.get_estado(), versao_dados, servidor, result_tags(),
                                            result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
