#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/modelo_cupom_fiscal.hpp>

#include <cstdint>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A fiscal receipt (cupom fiscal) that the note refers to.
class VELK_EXPORT cupom_referenciado {
public:
    // mod
    modelo_cupom_fiscal get_modelo() const { return modelo_; }
    cupom_referenciado& set_modelo(modelo_cupom_fiscal value)
    {
        modelo_ = value;
        return *this;
    }

    // nECF: order number of the printer
    std::uint16_t get_ecf() const { return ecf_; }
    cupom_referenciado& set_ecf(std::uint16_t value)
    {
        ecf_ = value;
        return *this;
    }

    // nCOO: operation counter
    std::uint32_t get_coo() const { return coo_; }
    cupom_referenciado& set_coo(std::uint32_t value)
    {
        coo_ = value;
        return *this;
    }

private:
    modelo_cupom_fiscal modelo_{};
    std::uint16_t ecf_ = 0;
    std::uint32_t coo_ = 0;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
