#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// CIDE charged on a fuel.
class VELK_EXPORT informacoes_cide_combustiveis {
public:
    // qBCProd
    core::decimal get_base_de_calculo() const { return base_de_calculo_; }
    informacoes_cide_combustiveis& set_base_de_calculo(core::decimal value)
    {
        base_de_calculo_ = std::move(value);
        return *this;
    }

    // vAliqProd
    core::decimal get_valor_aliquota() const { return valor_aliquota_; }
    informacoes_cide_combustiveis& set_valor_aliquota(core::decimal value)
    {
        valor_aliquota_ = std::move(value);
        return *this;
    }

    // vCIDE
    core::decimal get_valor_cide() const { return valor_cide_; }
    informacoes_cide_combustiveis& set_valor_cide(core::decimal value)
    {
        valor_cide_ = std::move(value);
        return *this;
    }

private:
    core::decimal base_de_calculo_;
    core::decimal valor_aliquota_;
    core::decimal valor_cide_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
