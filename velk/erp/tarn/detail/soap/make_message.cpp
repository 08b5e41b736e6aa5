#include <velk/erp/tarn/detail/soap/make_message.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

namespace velk::erp::inline v4::tarn::detail::soap {

message make_message(xml::document const& document, estado estado, std::string const& versao_dados,
                     std::string const& namespace_url, std::string const& namespace_prefix,
                     std::string const& namespace_header, core::result::stack& result)
{
    message request;
    request.namespaces[namespace_prefix] = namespace_url;
    add_header(request, estado, versao_dados, namespace_prefix, namespace_header);

    body_element dados("nfeDadosMsg", namespace_prefix);
    xml::element const* root = document.get_root_element();
    if (root == nullptr) {
        core::result::fresh<nfe::servico_result_category::requisicao_invalida>(result);
        return message();
    }
    dados.children.push_back(*root);
    request.body.push_back(std::move(dados));
    return request;
}

void add_header(message& target, estado estado, std::string const& versao_dados, std::string const& namespace_prefix,
                std::string const& namespace_header)
{
    bool const inner_prefixed = namespace_header == "com_namespace";
    if (!inner_prefixed && namespace_header != "sem_namespace") {
        return;
    }
    std::string const inner_prefix = inner_prefixed ? namespace_prefix : std::string();
    header_element cabecalho("nfeCabecMsg", namespace_prefix);
    cabecalho.children.emplace_back("cUF", inner_prefix, get_uf(estado));
    cabecalho.children.emplace_back("versaoDados", inner_prefix, versao_dados);
    target.header.push_back(std::move(cabecalho));
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
