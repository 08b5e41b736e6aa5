#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/documento_transportador.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The carrier.
class VELK_EXPORT transportador {
public:
    // CNPJ or CPF
    core::optional<documento_transportador> get_documento() const { return documento_; }
    transportador& set_documento(core::optional<documento_transportador> value)
    {
        documento_ = std::move(value);
        return *this;
    }

    // xNome
    core::optional<std::string> get_razao_social() const { return razao_social_; }
    transportador& set_razao_social(core::optional<std::string> value)
    {
        razao_social_ = std::move(value);
        return *this;
    }

    // IE
    core::optional<std::string> get_ie() const { return ie_; }
    transportador& set_ie(core::optional<std::string> value)
    {
        ie_ = std::move(value);
        return *this;
    }

    // first part of xEnder
    core::optional<std::string> get_logradouro() const { return logradouro_; }
    transportador& set_logradouro(core::optional<std::string> value)
    {
        logradouro_ = std::move(value);
        return *this;
    }

    // xMun
    core::optional<std::string> get_municipio() const { return municipio_; }
    transportador& set_municipio(core::optional<std::string> value)
    {
        municipio_ = std::move(value);
        return *this;
    }

    // UF
    core::optional<std::string> get_uf() const { return uf_; }
    transportador& set_uf(core::optional<std::string> value)
    {
        uf_ = std::move(value);
        return *this;
    }

private:
    core::optional<documento_transportador> documento_;
    core::optional<std::string> razao_social_;
    core::optional<std::string> ie_;
    core::optional<std::string> logradouro_;
    core::optional<std::string> municipio_;
    core::optional<std::string> uf_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
