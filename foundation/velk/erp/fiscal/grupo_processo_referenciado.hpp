#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/indicador_origem_processo.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A legal or administrative process the note refers to.
class VELK_EXPORT grupo_processo_referenciado {
public:
    // nProc
    std::string get_identificador() const { return identificador_; }
    grupo_processo_referenciado& set_identificador(std::string value)
    {
        identificador_ = std::move(value);
        return *this;
    }

    // indProc
    indicador_origem_processo get_indicador_da_origem() const { return indicador_da_origem_; }
    grupo_processo_referenciado& set_indicador_da_origem(indicador_origem_processo value)
    {
        indicador_da_origem_ = value;
        return *this;
    }

private:
    std::string identificador_;
    indicador_origem_processo indicador_da_origem_{};
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
