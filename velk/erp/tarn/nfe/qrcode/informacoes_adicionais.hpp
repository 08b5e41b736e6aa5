#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/versao_qrcode.hpp>

#include <memory>
#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// What the caller tells about the supplement of an NFC-e (infNFeSupl): the
// format of the QR string, the text of urlChave and the consultation page
// that the QR string is appended to. The CSC and its token are no part of
// it: they are handed beside it on every call, so that no object keeps them.
//
// The implementation is allocated on first need: a default-constructed or
// moved-from object reads as version 1.00, no urlChave and an empty page, and
// any setter makes it whole.
class VELK_EXPORT informacoes_adicionais {
public:
    informacoes_adicionais() noexcept;
    // url_qrcode is used as it stands: the QR string follows its last
    // character directly, so it ends in "?", as the layout requires. The QR
    // code needs a url_chave beside it (gerar_qrcode refuses an absent one).
    informacoes_adicionais(versao_qrcode versao, core::optional<std::string> const& url_chave,
                           std::string const& url_qrcode);
    informacoes_adicionais(informacoes_adicionais const& other);
    informacoes_adicionais(informacoes_adicionais&& other) noexcept;
    informacoes_adicionais& operator=(informacoes_adicionais const& other);
    informacoes_adicionais& operator=(informacoes_adicionais&& other) noexcept;
    ~informacoes_adicionais();

    void swap(informacoes_adicionais& other) noexcept;

    versao_qrcode get_versao_qrcode() const;
    void set_versao_qrcode(versao_qrcode versao);
    core::optional<std::string> get_url_chave() const;
    void set_url_chave(core::optional<std::string> const& url_chave);
    std::string get_url_qrcode() const;
    void set_url_qrcode(std::string const& url_qrcode);

private:
    struct impl;
    impl& ensure_impl();

    std::unique_ptr<impl> impl_;
};

inline void swap(informacoes_adicionais& left, informacoes_adicionais& right) noexcept
{
    left.swap(right);
}

}  // namespace velk::erp::inline v4::tarn::nfe
