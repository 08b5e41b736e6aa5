#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/informacoes_codigo_seguranca.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The software house responsible for the issuing program.
class VELK_EXPORT informacoes_responsavel_tecnico {
public:
    // CNPJ
    std::string get_cnpj() const { return cnpj_; }
    informacoes_responsavel_tecnico& set_cnpj(std::string value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // xContato
    std::string get_nome_pessoa_contatada() const { return nome_pessoa_contatada_; }
    informacoes_responsavel_tecnico& set_nome_pessoa_contatada(std::string value)
    {
        nome_pessoa_contatada_ = std::move(value);
        return *this;
    }

    // email
    std::string get_email() const { return email_; }
    informacoes_responsavel_tecnico& set_email(std::string value)
    {
        email_ = std::move(value);
        return *this;
    }

    // fone
    std::string get_telefone() const { return telefone_; }
    informacoes_responsavel_tecnico& set_telefone(std::string value)
    {
        telefone_ = std::move(value);
        return *this;
    }

    // idCSRT, hashCSRT
    core::optional<informacoes_codigo_seguranca> get_informacoes_codigo_seguranca() const
    {
        return informacoes_codigo_seguranca_;
    }
    informacoes_responsavel_tecnico& set_informacoes_codigo_seguranca(
        core::optional<informacoes_codigo_seguranca> value)
    {
        informacoes_codigo_seguranca_ = std::move(value);
        return *this;
    }

private:
    std::string cnpj_;
    std::string nome_pessoa_contatada_;
    std::string email_;
    std::string telefone_;
    core::optional<informacoes_codigo_seguranca> informacoes_codigo_seguranca_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
