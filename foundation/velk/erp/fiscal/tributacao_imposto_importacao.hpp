#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Import tax of the item (group II).
class VELK_EXPORT tributacao_imposto_importacao {
public:
    // vBC
    core::decimal get_valor_bc_imposto_importacao() const { return valor_bc_imposto_importacao_; }
    tributacao_imposto_importacao& set_valor_bc_imposto_importacao(core::decimal value)
    {
        valor_bc_imposto_importacao_ = std::move(value);
        return *this;
    }

    // vDespAdu
    core::decimal get_valor_despesas_aduaneiras() const { return valor_despesas_aduaneiras_; }
    tributacao_imposto_importacao& set_valor_despesas_aduaneiras(core::decimal value)
    {
        valor_despesas_aduaneiras_ = std::move(value);
        return *this;
    }

    // vII
    core::decimal get_valor_imposto_importacao() const { return valor_imposto_importacao_; }
    tributacao_imposto_importacao& set_valor_imposto_importacao(core::decimal value)
    {
        valor_imposto_importacao_ = std::move(value);
        return *this;
    }

    // vIOF
    core::optional<core::decimal> get_valor_imposto_operacoes_financeiras() const
    {
        return valor_imposto_operacoes_financeiras_;
    }
    tributacao_imposto_importacao& set_valor_imposto_operacoes_financeiras(core::optional<core::decimal> value)
    {
        valor_imposto_operacoes_financeiras_ = std::move(value);
        return *this;
    }

private:
    core::decimal valor_bc_imposto_importacao_;
    core::decimal valor_despesas_aduaneiras_;
    core::decimal valor_imposto_importacao_;
    core::optional<core::decimal> valor_imposto_operacoes_financeiras_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
