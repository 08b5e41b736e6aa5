#pragma once

#include <velk/core/decimal.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// Base, rate and value of a fund against poverty (FCP). Its setters give back the group that holds these values, so
// that they chain with the group's own.
template <class Grupo>
class valores_fcp {
public:
    // base: vBCFCP, vBCFCPST or vBCFCPSTRet
    core::decimal get_valor_bc() const { return valor_bc_; }
    Grupo& set_valor_bc(core::decimal value)
    {
        valor_bc_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // rate: pFCP, pFCPST or pFCPSTRet
    core::decimal get_percentual() const { return percentual_; }
    Grupo& set_percentual(core::decimal value)
    {
        percentual_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // value: vFCP, vFCPST or vFCPSTRet
    core::decimal get_valor() const { return valor_; }
    Grupo& set_valor(core::decimal value)
    {
        valor_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    core::decimal valor_bc_;
    core::decimal percentual_;
    core::decimal valor_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
