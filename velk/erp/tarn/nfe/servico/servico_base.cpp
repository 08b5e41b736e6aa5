#include <velk/erp/tarn/nfe/servico/servico_base.hpp>

#include <velk/erp/tarn/detail/soap/connection.hpp>
#include <velk/erp/tarn/detail/soap/extract_result_document.hpp>
#include <velk/erp/tarn/detail/soap/make_message.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::servico {

struct servico_base::impl {
    std::shared_ptr<tarn::detail::soap::connection::auth_impl const> auth;
    core::optional<network::proxy> proxy;
    std::chrono::milliseconds timeout{0};
};

servico_base::servico_base() : impl_(std::make_unique<impl>()) {}
servico_base::servico_base(servico_base const& other) : impl_(std::make_unique<impl>(*other.impl_)) {}
servico_base& servico_base::operator=(servico_base const& other)
{
    if (this != &other) {
        impl_ = std::make_unique<impl>(*other.impl_);
    }
    return *this;
}
servico_base::~servico_base() = default;

void servico_base::set_auth(cryptography::pkcs12 const& pkcs12, std::string const& ca_info_path)
{
    impl_->auth = std::make_shared<tarn::detail::soap::connection::auth_impl const>(
        tarn::detail::soap::connection::auth_impl{pkcs12, ca_info_path});
}

void servico_base::set_proxy(core::optional<network::proxy> const& proxy) { impl_->proxy = proxy; }
core::optional<network::proxy> servico_base::get_proxy() const { return impl_->proxy; }
void servico_base::set_timeout(std::chrono::milliseconds const& timeout) { impl_->timeout = timeout; }
std::chrono::milliseconds servico_base::get_timeout() const { return impl_->timeout; }

xml::document servico_base::request_document(xml::element const& root, core::result::stack& result)
{
    // An element without name is the tree of a request never made (a default
    // inutilizacao): there is nothing to send.
    if (root.get_name().empty()) {
        core::result::fresh<servico_result_category::requisicao_invalida>(result);
        return xml::document();
    }
    xml::document document;
    if (!document.append_node(root, result)) {
        core::result::chain<servico_result_category::requisicao_invalida>(result);
        return xml::document();
    }
    return document;
}

xml::document servico_base::exchange(xml::document const& request, estado estado, std::string const& versao_dados,
                                     web_server_info const& servidor, std::vector<std::string> const& valid_names,
                                     core::result::stack& result) const
{
    tarn::detail::soap::message const envelope =
        tarn::detail::soap::make_message(request, estado, versao_dados, servidor.get_namespace_url(),
                                   servidor.get_namespace_prefix(), servidor.get_namespace_header(), result);
    if (result.has_failed()) {
        return xml::document();
    }
    return exchange(envelope, servidor, valid_names, result);
}

xml::document servico_base::exchange(tarn::detail::soap::message const& request, web_server_info const& servidor,
                                     std::vector<std::string> const& valid_names, core::result::stack& result) const
{
    tarn::detail::soap::connection const link(impl_->proxy, impl_->timeout, impl_->auth);
    tarn::detail::soap::message answer =
        link.send(request, servidor.get_endpoint_url(), servidor.get_action_url(), result);
    if (result.has_failed()) {
        return xml::document();
    }
    xml::document document = tarn::detail::soap::extract_result_document(std::move(answer), valid_names, result);
    if (result.has_failed()) {
        core::result::chain<servico_result_category::resposta_nao_identificada>(result);
        return xml::document();
    }
    return document;
}

}  // namespace velk::erp::inline v4::tarn::nfe::servico
