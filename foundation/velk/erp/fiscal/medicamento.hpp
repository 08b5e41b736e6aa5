#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/erp/fiscal/codigo_anvisa.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A medicine sold in the item.
class VELK_EXPORT medicamento {
public:
    // cProdANVISA: the registration code, or the exemption
    codigo_anvisa get_codigo_anvisa() const { return codigo_anvisa_; }
    medicamento& set_codigo_anvisa(codigo_anvisa value)
    {
        codigo_anvisa_ = std::move(value);
        return *this;
    }

    // vPMC
    core::decimal get_preco_maximo_consumidor() const { return preco_maximo_consumidor_; }
    medicamento& set_preco_maximo_consumidor(core::decimal value)
    {
        preco_maximo_consumidor_ = std::move(value);
        return *this;
    }

private:
    codigo_anvisa codigo_anvisa_;
    core::decimal preco_maximo_consumidor_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
