#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Someone allowed to download the authorised XML (an accountant, a carrier).
// The CNPJ is taken when both are given.
class VELK_EXPORT autorizacao_acesso_xml {
public:
    // CNPJ, digits only
    core::optional<std::string> get_cnpj() const { return cnpj_; }
    autorizacao_acesso_xml& set_cnpj(core::optional<std::string> value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // CPF, digits only
    core::optional<std::string> get_cpf() const { return cpf_; }
    autorizacao_acesso_xml& set_cpf(core::optional<std::string> value)
    {
        cpf_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> cnpj_;
    core::optional<std::string> cpf_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
