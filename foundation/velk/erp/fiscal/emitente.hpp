#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/endereco.hpp>
#include <velk/erp/fiscal/regime_tributario.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The issuer of the note.
class VELK_EXPORT emitente {
public:
    // CNPJ, digits only
    core::optional<std::string> get_cnpj() const { return cnpj_; }
    emitente& set_cnpj(core::optional<std::string> value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // xNome
    std::string get_razao_social() const { return razao_social_; }
    emitente& set_razao_social(std::string value)
    {
        razao_social_ = std::move(value);
        return *this;
    }

    // xFant
    core::optional<std::string> get_nome_fantasia() const { return nome_fantasia_; }
    emitente& set_nome_fantasia(core::optional<std::string> value)
    {
        nome_fantasia_ = std::move(value);
        return *this;
    }

    // enderEmit
    endereco get_endereco() const { return endereco_; }
    emitente& set_endereco(endereco value)
    {
        endereco_ = std::move(value);
        return *this;
    }

    // fone of enderEmit, digits only
    core::optional<std::string> get_telefone() const { return telefone_; }
    emitente& set_telefone(core::optional<std::string> value)
    {
        telefone_ = std::move(value);
        return *this;
    }

    // IE
    std::string get_ie() const { return ie_; }
    emitente& set_ie(std::string value)
    {
        ie_ = std::move(value);
        return *this;
    }

    // IEST
    core::optional<std::string> get_iest() const { return iest_; }
    emitente& set_iest(core::optional<std::string> value)
    {
        iest_ = std::move(value);
        return *this;
    }

    // IM
    core::optional<std::string> get_inscricao_municipal() const { return inscricao_municipal_; }
    emitente& set_inscricao_municipal(core::optional<std::string> value)
    {
        inscricao_municipal_ = std::move(value);
        return *this;
    }

    // CNAE
    core::optional<std::uint32_t> get_cnae() const { return cnae_; }
    emitente& set_cnae(core::optional<std::uint32_t> value)
    {
        cnae_ = value;
        return *this;
    }

    // CRT
    regime_tributario get_regime_fiscal() const { return regime_fiscal_; }
    emitente& set_regime_fiscal(regime_tributario value)
    {
        regime_fiscal_ = value;
        return *this;
    }

private:
    core::optional<std::string> cnpj_;
    std::string razao_social_;
    core::optional<std::string> nome_fantasia_;
    endereco endereco_;
    core::optional<std::string> telefone_;
    std::string ie_;
    core::optional<std::string> iest_;
    core::optional<std::string> inscricao_municipal_;
    core::optional<std::uint32_t> cnae_;
    regime_tributario regime_fiscal_{};
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
