#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/endereco.hpp>
#include <velk/erp/fiscal/indicador_ie_destinatario.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The recipient of the note.
class VELK_EXPORT destinatario {
public:
    // CPF, digits only; taken before the CNPJ
    core::optional<std::string> get_cpf() const { return cpf_; }
    destinatario& set_cpf(core::optional<std::string> value)
    {
        cpf_ = std::move(value);
        return *this;
    }

    // CNPJ, digits only
    core::optional<std::string> get_cnpj() const { return cnpj_; }
    destinatario& set_cnpj(core::optional<std::string> value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // idEstrangeiro: a foreigner's document
    core::optional<std::string> get_indicador_estrangeiro() const { return indicador_estrangeiro_; }
    destinatario& set_indicador_estrangeiro(core::optional<std::string> value)
    {
        indicador_estrangeiro_ = std::move(value);
        return *this;
    }

    // xNome
    core::optional<std::string> get_razao_social() const { return razao_social_; }
    destinatario& set_razao_social(core::optional<std::string> value)
    {
        razao_social_ = std::move(value);
        return *this;
    }

    // enderDest
    core::optional<endereco> get_endereco() const { return endereco_; }
    destinatario& set_endereco(core::optional<endereco> value)
    {
        endereco_ = std::move(value);
        return *this;
    }

    // fone, digits only
    core::optional<std::string> get_telefone() const { return telefone_; }
    destinatario& set_telefone(core::optional<std::string> value)
    {
        telefone_ = std::move(value);
        return *this;
    }

    // indIEDest
    indicador_ie_destinatario get_indicador_de_ie() const { return indicador_de_ie_; }
    destinatario& set_indicador_de_ie(indicador_ie_destinatario value)
    {
        indicador_de_ie_ = value;
        return *this;
    }

    // IE
    core::optional<std::string> get_ie() const { return ie_; }
    destinatario& set_ie(core::optional<std::string> value)
    {
        ie_ = std::move(value);
        return *this;
    }

    // ISUF
    core::optional<std::string> get_inscricao_suframa() const { return inscricao_suframa_; }
    destinatario& set_inscricao_suframa(core::optional<std::string> value)
    {
        inscricao_suframa_ = std::move(value);
        return *this;
    }

    // email
    core::optional<std::string> get_email() const { return email_; }
    destinatario& set_email(core::optional<std::string> value)
    {
        email_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> cpf_;
    core::optional<std::string> cnpj_;
    core::optional<std::string> indicador_estrangeiro_;
    core::optional<std::string> razao_social_;
    core::optional<endereco> endereco_;
    core::optional<std::string> telefone_;
    indicador_ie_destinatario indicador_de_ie_{};
    core::optional<std::string> ie_;
    core::optional<std::string> inscricao_suframa_;
    core::optional<std::string> email_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
