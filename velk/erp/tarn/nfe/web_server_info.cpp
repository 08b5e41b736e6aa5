#include <velk/erp/tarn/nfe/web_server_info.hpp>

namespace velk::erp::inline v4::tarn::nfe {

struct web_server_info::impl {
    std::string endpoint_url;
    std::string action_url;
    std::string namespace_url;
    std::string namespace_prefix;
    std::string namespace_header;
    ambiente ambiente_value = ambiente::homologacao;
    bool async = false;
};

web_server_info::web_server_info() : impl_(std::make_unique<impl>()) {}
web_server_info::web_server_info(web_server_info const& other) : impl_(std::make_unique<impl>(*other.impl_)) {}
web_server_info::web_server_info(web_server_info&& other) noexcept = default;
web_server_info& web_server_info::operator=(web_server_info const& other)
{
    if (this != &other) {
        impl_ = std::make_unique<impl>(*other.impl_);
    }
    return *this;
}
web_server_info& web_server_info::operator=(web_server_info&& other) noexcept = default;
web_server_info::~web_server_info() = default;

std::string web_server_info::get_endpoint_url() const { return impl_->endpoint_url; }
void web_server_info::set_endpoint_url(std::string const& value) { impl_->endpoint_url = value; }
std::string web_server_info::get_action_url() const { return impl_->action_url; }
void web_server_info::set_action_url(std::string const& value) { impl_->action_url = value; }
std::string web_server_info::get_namespace_url() const { return impl_->namespace_url; }
void web_server_info::set_namespace_url(std::string const& value) { impl_->namespace_url = value; }
std::string web_server_info::get_namespace_prefix() const { return impl_->namespace_prefix; }
void web_server_info::set_namespace_prefix(std::string const& value) { impl_->namespace_prefix = value; }
std::string web_server_info::get_namespace_header() const { return impl_->namespace_header; }
void web_server_info::set_namespace_header(std::string const& value) { impl_->namespace_header = value; }
ambiente web_server_info::get_ambiente() const { return impl_->ambiente_value; }
void web_server_info::set_ambiente(ambiente const& value) { impl_->ambiente_value = value; }
bool web_server_info::is_async() { return impl_->async; }
void web_server_info::set_async(bool value) { impl_->async = value; }

}  // namespace velk::erp::inline v4::tarn::nfe
