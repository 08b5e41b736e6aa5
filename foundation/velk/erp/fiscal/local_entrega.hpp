#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/endereco.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Where the goods are delivered, when not at the recipient's address.
class VELK_EXPORT local_entrega {
public:
    // CPF, digits only; taken before the CNPJ
    core::optional<std::string> get_cpf() const { return cpf_; }
    local_entrega& set_cpf(core::optional<std::string> value)
    {
        cpf_ = std::move(value);
        return *this;
    }

    // CNPJ, digits only
    core::optional<std::string> get_cnpj() const { return cnpj_; }
    local_entrega& set_cnpj(core::optional<std::string> value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // xLgr up to UF
    endereco get_endereco() const { return endereco_; }
    local_entrega& set_endereco(endereco value)
    {
        endereco_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> cpf_;
    core::optional<std::string> cnpj_;
    endereco endereco_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
