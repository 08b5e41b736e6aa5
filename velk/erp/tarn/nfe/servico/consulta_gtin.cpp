#include <velk/erp/tarn/nfe/servico/consulta_gtin.hpp>

#include <velk/erp/tarn/detail/soap/message.hpp>

namespace velk::erp::inline v4::tarn::nfe::servico {

namespace {

// The catalogue's envelope: the service namespace as make_message declares
// it, no header, and ccgConsGTIN/nfeDadosMsg around the message.
tarn::detail::soap::message gtin_message(xml::document const& document, web_server_info const& servidor,
                                   core::result::stack& result)
{
    xml::element const* root = document.get_root_element();
    if (root == nullptr) {
        core::result::fresh<servico_result_category::requisicao_invalida>(result);
        return {};
    }
    tarn::detail::soap::message request;
    request.namespaces[servidor.get_namespace_prefix()] = servidor.get_namespace_url();
    xml::element dados("nfeDadosMsg");
    dados.append_node(*root);
    tarn::detail::soap::body_element consulta("ccgConsGTIN", servidor.get_namespace_prefix());
    consulta.children.push_back(std::move(dados));
    request.body.push_back(std::move(consulta));
    return request;
}

}  // namespace

consulta_gtin::resposta_type consulta_gtin::executar(requisicao_type const& requisicao,
                                                     web_server_info const& servidor,
                                                     core::result::stack& result) const
{
    xml::document const request = request_document(requisicao, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    tarn::detail::soap::message const envelope = gtin_message(request, servidor, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    xml::document const answer = exchange(envelope, servidor, {"ccgConsGTINResponse"}, result);
    if (result.has_failed()) {
        return resposta_type();
    }
    return read_response<resposta_type>(answer, result);
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
