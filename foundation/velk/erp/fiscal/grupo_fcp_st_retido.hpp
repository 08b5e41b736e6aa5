#pragma once

#include <velk/core/decimal.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Fund against poverty (FCP) retained by substitution.
class grupo_fcp_st_retido {
public:
    // vBCFCPST
    core::decimal get_valor_bc() const { return valor_bc_; }
    grupo_fcp_st_retido& set_valor_bc(core::decimal value)
    {
        valor_bc_ = std::move(value);
        return *this;
    }

    // pFCPST
    core::decimal get_percentual() const { return percentual_; }
    grupo_fcp_st_retido& set_percentual(core::decimal value)
    {
        percentual_ = std::move(value);
        return *this;
    }

    // vFCPST
    core::decimal get_valor() const { return valor_; }
    grupo_fcp_st_retido& set_valor(core::decimal value)
    {
        valor_ = std::move(value);
        return *this;
    }

private:
    core::decimal valor_bc_;
    core::decimal percentual_;
    core::decimal valor_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
