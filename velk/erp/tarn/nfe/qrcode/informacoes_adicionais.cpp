#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe {

struct informacoes_adicionais::impl {
    versao_qrcode versao = versao_qrcode::versao_100;
    core::optional<std::string> url_chave;
    std::string url_qrcode;
};

informacoes_adicionais::informacoes_adicionais() noexcept = default;

informacoes_adicionais::informacoes_adicionais(versao_qrcode versao, core::optional<std::string> const& url_chave,
                                               std::string const& url_qrcode)
    : impl_(std::make_unique<impl>(impl{versao, url_chave, url_qrcode}))
{
}

informacoes_adicionais::informacoes_adicionais(informacoes_adicionais const& other)
    : impl_(other.impl_ ? std::make_unique<impl>(*other.impl_) : nullptr)
{
}

informacoes_adicionais::informacoes_adicionais(informacoes_adicionais&& other) noexcept = default;

informacoes_adicionais& informacoes_adicionais::operator=(informacoes_adicionais const& other)
{
    if (this != &other) {
        informacoes_adicionais copy(other);
        swap(copy);
    }
    return *this;
}

informacoes_adicionais& informacoes_adicionais::operator=(informacoes_adicionais&& other) noexcept = default;
informacoes_adicionais::~informacoes_adicionais() = default;

void informacoes_adicionais::swap(informacoes_adicionais& other) noexcept
{
    impl_.swap(other.impl_);
}

informacoes_adicionais::impl& informacoes_adicionais::ensure_impl()
{
    if (!impl_) {
        impl_ = std::make_unique<impl>();
    }
    return *impl_;
}

versao_qrcode informacoes_adicionais::get_versao_qrcode() const
{
    return impl_ ? impl_->versao : versao_qrcode::versao_100;
}

void informacoes_adicionais::set_versao_qrcode(versao_qrcode versao)
{
    ensure_impl().versao = versao;
}

core::optional<std::string> informacoes_adicionais::get_url_chave() const
{
    return impl_ ? impl_->url_chave : core::optional<std::string>();
}

void informacoes_adicionais::set_url_chave(core::optional<std::string> const& url_chave)
{
    ensure_impl().url_chave = url_chave;
}

std::string informacoes_adicionais::get_url_qrcode() const
{
    return impl_ ? impl_->url_qrcode : std::string();
}

void informacoes_adicionais::set_url_qrcode(std::string const& url_qrcode)
{
    ensure_impl().url_qrcode = url_qrcode;
}

}  // namespace velk::erp::inline v4::tarn::nfe
