#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Effective ICMS, for a consumer sale of goods taxed before by substitution.
class VELK_EXPORT informacoes_icms_efetivo {
public:
    // pRedBCEfet
    core::decimal get_percentual_reducao_bc() const { return percentual_reducao_bc_; }
    informacoes_icms_efetivo& set_percentual_reducao_bc(core::decimal value)
    {
        percentual_reducao_bc_ = std::move(value);
        return *this;
    }

    // vBCEfet
    core::decimal get_valor_bc() const { return valor_bc_; }
    informacoes_icms_efetivo& set_valor_bc(core::decimal value)
    {
        valor_bc_ = std::move(value);
        return *this;
    }

    // pICMSEfet
    core::decimal get_aliquota() const { return aliquota_; }
    informacoes_icms_efetivo& set_aliquota(core::decimal value)
    {
        aliquota_ = std::move(value);
        return *this;
    }

    // vICMSEfet
    core::decimal get_valor() const { return valor_; }
    informacoes_icms_efetivo& set_valor(core::decimal value)
    {
        valor_ = std::move(value);
        return *this;
    }

private:
    core::decimal percentual_reducao_bc_;
    core::decimal valor_bc_;
    core::decimal aliquota_;
    core::decimal valor_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
