#pragma once

#include <velk/core/export.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The marketplace through which the sale was made.
class VELK_EXPORT informacoes_intermediador {
public:
    // CNPJ
    std::uint64_t get_cnpj() const { return cnpj_; }
    informacoes_intermediador& set_cnpj(std::uint64_t value)
    {
        cnpj_ = value;
        return *this;
    }

    // idCadIntTran: the seller's name on the platform
    std::string get_identificador_cadastrado() const { return identificador_cadastrado_; }
    informacoes_intermediador& set_identificador_cadastrado(std::string value)
    {
        identificador_cadastrado_ = std::move(value);
        return *this;
    }

private:
    std::uint64_t cnpj_ = 0;
    std::string identificador_cadastrado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
