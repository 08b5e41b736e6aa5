#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

namespace {

// Every version of the service may answer under any of these tags.
std::vector<std::string> const& result_tags()
{
    static std::vector<std::string> const tags = {"nfeStatusServicoNFResult", "nfeStatusServicoNF2Result",
                                                  "nfeResultMsg"};
    return tags;
}

}  // namespace

status_autorizador::resposta_type status_autorizador::executar(requisicao_type const& requisicao,
                                                               web_server_info const& servidor,
                                                               core::result::stack& result) const
{
    std::string const versao_dados = checked_text<7>(requisicao.get_versao(), result);
    if (result.has_failed()) {
        return resposta_type();
    }
    checked_text<12>(requisicao.get_estado(), result);
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
